#include "windows/file_drop.h"

#include "core/file_names.h"
#include "services/file_complaints.h"
#include "windows/qt_text.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace orvane {

namespace {

/// What was dropped: the paths of the files that are wanted, and the names of all else.
struct DroppedFiles
{
    std::vector<Text> Paths;
    std::vector<Text> LeftOut;
};

/// The name of a file or folder; an address without one is shown whole.
Text NameOf(const QUrl& url)
{
    const QString name = url.adjusted(QUrl::StripTrailingSlash).fileName();
    return FromQt(name.isEmpty() ? url.toDisplayString() : name);
}

DroppedFiles FilesIn(const QMimeData& dropped, TextView masks)
{
    DroppedFiles files;
    for (const QUrl& url : dropped.urls()) {
        const QString path = url.toLocalFile();
        if (QFileInfo(path).isFile() && MatchesMasks(GetFileName(FromQt(path)), masks))
            files.Paths.push_back(FromQt(path));
        else
            files.LeftOut.push_back(NameOf(url));
    }
    return files;
}

} // namespace

FileDrop::FileDrop(QWidget& target, TextView masks, Dialogs& dialogs, std::size_t most)
    : QObject(&target), m_masks(masks), m_dialogs(dialogs), m_most(most)
{
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* target, QEvent* event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QObject::eventFilter(target, event);
    auto* drop = static_cast<QDropEvent*>(event);
    const DroppedFiles files = FilesIn(*drop->mimeData(), m_masks);
    if (files.Paths.empty() || files.Paths.size() + files.LeftOut.size() > m_most ||
        !(drop->possibleActions() & Qt::CopyAction)) {
        drop->ignore();
        return true;
    }
    // The files stay where they are, whatever the sender proposes.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    // The sender waits until the drop is over, and taking the files may ask the author.
    const auto take = [this, files] {
        emit Dropped(files.Paths);
        if (!files.LeftOut.empty())
            m_dialogs.Say(
                AboutFiles(u"These files do not fit here and were left out:", files.LeftOut).Words);
    };
    if (isDrop)
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    return true;
}

} // namespace orvane
