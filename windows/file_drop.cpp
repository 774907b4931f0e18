#include "windows/file_drop.h"

#include "core/file_names.h"
#include "windows/qt_text.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace orvane {

namespace {

/// The dropped files; none when one of them is none of those that are wanted.
std::vector<Text> FilesIn(const QMimeData& dropped, TextView masks)
{
    std::vector<Text> paths;
    for (const QUrl& url : dropped.urls()) {
        const QString path = url.toLocalFile();
        if (!QFileInfo(path).isFile() || !MatchesMasks(GetFileName(FromQt(path)), masks))
            return {};
        paths.push_back(FromQt(path));
    }
    return paths;
}

} // namespace

FileDrop::FileDrop(QWidget& target, TextView masks, std::size_t most)
    : QObject(&target), m_masks(masks), m_most(most)
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
    const std::vector<Text> paths = FilesIn(*drop->mimeData(), m_masks);
    if (paths.empty() || paths.size() > m_most || !(drop->possibleActions() & Qt::CopyAction)) {
        drop->ignore();
        return true;
    }
    // The files stay where they are, whatever the sender proposes.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    // The sender waits until the drop is over, and taking the files may ask the author.
    if (isDrop)
        QMetaObject::invokeMethod(
            this, [this, paths] { emit Dropped(paths); }, Qt::QueuedConnection);
    return true;
}

} // namespace orvane
