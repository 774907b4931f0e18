#include "tests/tour/visitor.h"

#include "tests/support/qt_browser_page.h"

#include <QFile>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <regex>

namespace orvane::testing {

namespace {

constexpr int stayMs = 400;

/// Lets files through, and writes down those that are missing.
class Requests : public QWebEngineUrlRequestInterceptor
{
public:
    explicit Requests(Visit& visit) : m_visit(visit) {}

    void interceptRequest(QWebEngineUrlRequestInfo& request) override
    {
        const QUrl url = request.requestUrl();
        if (url.isLocalFile() && !QFile::exists(url.toLocalFile()))
            m_visit.MissingFiles.insert(url.fileName().toStdString());
        request.block(!url.isLocalFile() && url.scheme() != QStringLiteral("data") &&
                      url.scheme() != QStringLiteral("blob"));
    }

private:
    Visit& m_visit;
};

/// Answers every box of a page with its first button, and stays on the page.
class VisitedPage : public QWebEnginePage
{
public:
    VisitedPage(QWebEngineProfile& profile, Visit& visit) : QWebEnginePage(&profile), m_visit(visit)
    {
    }

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) override
    {
        return !isMainFrame || url.isLocalFile();
    }
    void javaScriptAlert(const QUrl&, const QString&) override {}
    bool javaScriptConfirm(const QUrl&, const QString&) override { return true; }
    bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString* entered) override
    {
        *entered = QStringLiteral("Jane");
        return true;
    }
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int,
                                  const QString&) override
    {
        if (level == ErrorMessageLevel)
            m_visit.Errors.push_back(message.toStdString());
    }

private:
    Visit& m_visit;
};

} // namespace

Visit VisitPage(const QString& path)
{
    Visit visit;
    Requests requests(visit);
    QWebEngineProfile profile;
    profile.setUrlRequestInterceptor(&requests);
    QWebEngineView view;
    VisitedPage page(profile, visit);
    view.setPage(&page);
    view.resize(640, 480);
    view.show();
    QObject::connect(&page, &QWebEnginePage::loadFinished, &view,
                     [&](bool isLoaded) { visit.IsLoaded = isLoaded; });
    page.load(QUrl::fromLocalFile(path));
    EXPECT_TRUE(WaitFor([&] { return visit.IsLoaded; })) << path.toStdString();
    static_cast<void>(WaitFor([] { return false; }, stayMs));
    visit.Picture = view.grab().toImage();
    return visit;
}

std::vector<std::string> FilesNamedIn(const std::string& page)
{
    static const std::regex name(
        "[\"'=(]([A-Za-z0-9_ -]+\\.(?:gif|jpe?g|png|wav|au|txt|js|class|cgi"
        "))(?=[\"')> ])");
    std::vector<std::string> names;
    for (std::sregex_iterator found(page.begin(), page.end(), name), end; found != end; ++found)
        names.push_back(found->str(1));
    return names;
}

} // namespace orvane::testing
