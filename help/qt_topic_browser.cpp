#include "help/qt_topic_browser.h"

#include "core/file_names.h"
#include "core/file_store.h"
#include "windows/qt_text.h"
#include "windows/shared_folder.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

namespace orvane {

namespace {

constexpr QLatin1String topicScheme("topic");

/// The palette's link colour; its text colour when links would hardly be seen on the background.
QColor LinkColor(const QPalette& palette)
{
    constexpr int leastContrast = 80;
    const int background = qGray(palette.color(QPalette::Base).rgb());
    const int link = qGray(palette.color(QPalette::Link).rgb());
    return palette.color(std::abs(background - link) < leastContrast ? QPalette::Text
                                                                     : QPalette::Link);
}

} // namespace

QUrl TopicUrl(int number)
{
    return QUrl(topicScheme + u':' + QString::number(number));
}

int TopicOf(const QUrl& url)
{
    bool isNumber = false;
    const int number = url.path().toInt(&isNumber);
    return isNumber && url.scheme() == topicScheme ? number : -1;
}

TopicBrowser::TopicBrowser(const HelpBook& book, const FileStore& files, Text pictures)
    : m_book(book), m_files(files), m_pictures(std::move(pictures))
{
    setOpenLinks(false);
    document()->setDocumentMargin(fontMetrics().averageCharWidth());
    connect(this, &QTextBrowser::sourceChanged, this, &TopicBrowser::FitPictures);
    FollowPalette();
}

QVariant TopicBrowser::loadResource(int type, const QUrl& name)
{
    if (type == QTextDocument::ImageResource)
        return Picture(FromQt(name.path()));
    return Page(FindTopic(m_book, TopicOf(name)));
}

QString TopicBrowser::Page(const HelpTopic* topic) const
{
    const QString page = QStringLiteral("<h2>%1</h2>%2");
    if (topic != nullptr)
        return page.arg(ToQt(topic->Title).toHtmlEscaped(), ToQt(topic->Body));
    if (m_book.empty())
        return page.arg(QStringLiteral("The help cannot be shown"),
                        QStringLiteral("<p>Orvane could not read its help book. Close Orvane and "
                                       "start it again: it then puts the book back.</p>"));
    return page.arg(QStringLiteral("There is no help for this"),
                    QStringLiteral("<p>The help book has no topic about this. The "
                                   "<a href=\"topic:0\">contents</a> list all topics.</p>"));
}

QVariant TopicBrowser::Picture(TextView name) const
{
    const auto bytes = m_files.Read(PathIn(m_pictures, GetFileName(name)));
    // The pictures of windows are not copied into the program's folder.
    if (FaultIn(bytes) != nullptr)
        return QImage(SharedFolder(QStringLiteral("help/")) + ToQt(GetFileName(name)));
    return QImage::fromData(QByteArray::fromStdString(ValueIn(bytes)));
}

void TopicBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        FollowPalette();
}

void TopicBrowser::FollowPalette()
{
    // Colours are fixed when a page is read, so a page on show is read again.
    document()->setDefaultStyleSheet(
        QStringLiteral("a { color: %1 }").arg(LinkColor(palette()).name()));
    reload();
    FitPictures();
}

void TopicBrowser::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    FitPictures();
}

void TopicBrowser::FitPictures()
{
    // The same with and without a scroll bar, which a smaller picture may take away.
    const int room = maximumViewportSize().width() - verticalScrollBar()->sizeHint().width() -
                     2 * static_cast<int>(document()->documentMargin());
    std::vector<std::pair<int, QTextImageFormat>> pictures;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (const auto picture = part.fragment().charFormat().toImageFormat();
                picture.isValid())
                pictures.emplace_back(part.fragment().position(), picture);
    QTextCursor cursor(document());
    for (auto& [place, picture] : pictures) {
        const QVariant shown = document()->resource(QTextDocument::ImageResource, picture.name());
        const int width = std::min(shown.value<QImage>().width(), std::max(room, 1));
        if (picture.width() == width)
            continue;
        picture.setWidth(width);
        cursor.setPosition(place);
        cursor.setPosition(place + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(picture);
    }
}

} // namespace orvane
