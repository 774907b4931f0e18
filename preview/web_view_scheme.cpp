#include "preview/web_view_scheme.h"

#include "preview/live_files.h"
#include "windows/qt_text.h"

#include <QBuffer>
#include <QFile>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace orvane {

namespace {

QUrl UrlOf(int number, TextView name)
{
    QUrl url;
    url.setScheme(QLatin1String(liveScheme));
    url.setHost(QStringLiteral("page"));
    url.setPath(QStringLiteral("/%1/").arg(number) + ToQt(name));
    return url;
}

/// The name relative to the page's folder.
Text NameIn(const QUrl& url)
{
    return FromQt(url.path().section(u'/', 2));
}

bool IsEmptyPage(const QUrl& url)
{
    return url.path() == LiveScheme::EmptyPage().path();
}

QByteArray MimeType(TextView name)
{
    const std::string_view type = MimeTypeOf(name);
    return QByteArray(type.data(), static_cast<qsizetype>(type.size()));
}

void Reply(QWebEngineUrlRequestJob& job, TextView name, std::string_view bytes)
{
    auto* content = new QBuffer(&job);
    content->setData(bytes.data(), static_cast<int>(bytes.size()));
    job.reply(MimeType(name), content);
}

} // namespace

void RegisterLiveScheme()
{
    if (!QWebEngineUrlScheme::schemeByName(liveScheme).name().isEmpty())
        return;
    QWebEngineUrlScheme scheme(liveScheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme | QWebEngineUrlScheme::CorsEnabled);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QUrl LiveScheme::EmptyPage()
{
    return UrlOf(0, {});
}

QUrl LiveScheme::Add(int number, const LivePage& page, int kept)
{
    std::erase_if(m_pages, [kept](const auto& known) { return known.first != kept; });
    m_pages[number] = page;
    return UrlOf(number, page.Name);
}

/// The page with the number of the address; null when it is forgotten.
const LivePage* LiveScheme::PageOf(const QUrl& url) const
{
    const auto page = m_pages.find(url.path().section(u'/', 1, 1).toInt());
    return page == m_pages.end() ? nullptr : &page->second;
}

bool LiveScheme::Has(const QUrl& url) const
{
    const LivePage* page = PageOf(url);
    return IsEmptyPage(url) || (page != nullptr && HasFile(*page, NameIn(url)));
}

void LiveScheme::requestStarted(QWebEngineUrlRequestJob* job)
{
    const QUrl url = job->requestUrl();
    if (IsEmptyPage(url))
        return Reply(*job, u".html", "<!DOCTYPE html>");
    const LivePage* page = PageOf(url);
    const auto file = page == nullptr ? std::nullopt : FileOf(*page, NameIn(url));
    if (!file)
        return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    if (file->Path.empty())
        return Reply(*job, file->Name, file->Bytes);
    auto* content = new QFile(ToQt(file->Path), job);
    if (!content->open(QIODevice::ReadOnly))
        return job->fail(QWebEngineUrlRequestJob::RequestDenied);
    if (page->View.HasReducedMotion && MayAskForMotion(file->Name))
        return Reply(*job, file->Name, WithReducedMotion(content->readAll().toStdString()));
    job->reply(MimeType(file->Name), content);
}

} // namespace orvane
