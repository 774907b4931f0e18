#pragma once

#include "help/help_book.h"

#include <QTextBrowser>

namespace orvane {

class FileStore;

/// The address under which a topic is shown and linked to, such as "topic:47".
QUrl TopicUrl(int number);

/// The number in a topic's address; -1 for any other address.
int TopicOf(const QUrl& url);

/// Shows the topics of a book by their addresses, and remembers the way through them. A number that
/// the book lacks gives a page that says so. Links are told, not followed.
class TopicBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    /// The book may be filled later; `pictures` is the folder of its pictures.
    TopicBrowser(const HelpBook& book, const FileStore& files, Text pictures);

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    QString Page(const HelpTopic* topic) const;
    QVariant Picture(TextView name) const;
    void FollowPalette();

    const HelpBook& m_book;
    const FileStore& m_files;
    Text m_pictures;
};

} // namespace orvane
