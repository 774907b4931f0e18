#include "windows/file_drop.h"

#include "core/file_names.h"
#include "services/file_complaints.h"
#include "services/folder_list.h"
#include "windows/qt_text.h"

#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace orvane {

namespace {

using Files = FileDrop::Files;

/// The name of a file or folder; an address without one is shown whole.
Text NameOf(const QUrl& url)
{
    const QString name = url.adjusted(QUrl::StripTrailingSlash).fileName();
    return FromQt(name.isEmpty() ? url.toDisplayString() : name);
}

Files FilesIn(const QMimeData& dropped, TextView masks, bool areFoldersWanted)
{
    Files files;
    for (const QUrl& url : dropped.urls()) {
        const QFileInfo file(url.toLocalFile());
        const Text path = FromQt(file.filePath());
        if (file.isDir() ? areFoldersWanted
                         : file.isFile() && MatchesMasks(GetFileName(path), masks))
            files.Paths.push_back(path);
        else
            files.LeftOut.push_back(NameOf(url));
    }
    return files;
}

/// The same with the files of each folder in its place.
Files WithFoldersOpened(const Files& dropped, TextView masks, const FileStore& store)
{
    Files files{.LeftOut = dropped.LeftOut};
    for (const Text& path : dropped.Paths) {
        if (!QFileInfo(ToQt(path)).isDir()) {
            files.Paths.push_back(path);
            continue;
        }
        std::vector<Text> names = ListFiles(store, path, masks);
        if (names.empty())
            files.LeftOut.push_back(NameOf(QUrl::fromLocalFile(ToQt(path))));
        std::ranges::sort(names, ComesBefore);
        for (const Text& name : names)
            files.Paths.push_back(PathIn(path, name));
    }
    return files;
}

} // namespace

FileDrop::FileDrop(QWidget& target, TextView masks, Workbench& bench, std::size_t most)
    : QObject(&target), m_masks(masks), m_bench(bench), m_most(most)
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
    const Files files = FilesIn(*drop->mimeData(), m_masks, m_most > 1);
    if (files.Paths.empty() || files.Paths.size() + files.LeftOut.size() > m_most ||
        !(drop->possibleActions() & Qt::CopyAction)) {
        drop->ignore();
        return true;
    }
    // The files stay where they are, whatever the sender proposes.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    // The sender waits until the drop is over, and taking the files may ask the author.
    if (isDrop)
        QMetaObject::invokeMethod(
            this, [this, files] { Take(WithFoldersOpened(files, m_masks, m_bench.Files)); },
            Qt::QueuedConnection);
    return true;
}

void FileDrop::Take(const Files& files)
{
    if (!files.Paths.empty())
        emit Dropped(files.Paths);
    if (!files.LeftOut.empty())
        m_bench.Dialogs.Say(
            AboutFiles(u"These files do not fit here and were left out:", files.LeftOut).Words);
}

} // namespace orvane
