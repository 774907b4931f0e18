#pragma once

#include "help/help_book.h"

#include <QTextBrowser>

namespace orvane {

class FileStore;

/// The address under which a topic is shown and linked to, such as "topic:47".
QUrl TopicUrl(int number);

/// The number in a topic's address; -1 for any other address.
int TopicOf(const QUrl& url);

/// Shows the topics of a book by their addresses, with a history to go back and forward. A number
/// that the book lacks gives a page that says so. A picture is shown no wider than the window has
/// room. A click on a link only emits anchorClicked().
class TopicBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    /// `book` may be filled later and must outlive this object; `pictures` is the folder of its
    /// pictures.
    TopicBrowser(const HelpBook& book, const FileStore& files, Text pictures);

    /// The page for a topic's address, or a picture of the book.
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QString Page(const HelpTopic* topic) const;
    QVariant Picture(TextView name) const;
    void FollowPalette();
    void FitPictures();

    const HelpBook& m_book;
    const FileStore& m_files;
    Text m_pictures;
};

} // namespace orvane
