#include "windows/dropped_file.h"

#include "windows/qt_text.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace orvane {

namespace {

/// Answers the drags over one widget.
class DropFilter : public QObject
{
public:
    DropFilter(QWidget* widget, std::function<bool(TextView)> admits,
               std::function<void(const Text&)> take)
        : QObject(widget), m_admits(std::move(admits)), m_take(std::move(take))
    {
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove &&
            event->type() != QEvent::Drop)
            return false;
        auto* drag = static_cast<QDropEvent*>(event);
        const auto path = DroppedFile(*drag->mimeData());
        const bool isWanted = path && m_admits(*path) && (drag->possibleActions() & Qt::CopyAction);
        drag->setAccepted(isWanted);
        if (!isWanted)
            return true;
        // The file stays where it lies.
        drag->setDropAction(Qt::CopyAction);
        if (event->type() == QEvent::Drop)
            m_take(*path);
        return true;
    }

private:
    std::function<bool(TextView)> m_admits;
    std::function<void(const Text&)> m_take;
};

} // namespace

std::optional<Text> DroppedFile(const QMimeData& dragged)
{
    const QList<QUrl> urls = dragged.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile())
        return std::nullopt;
    const QFileInfo file(urls.front().toLocalFile());
    return file.isFile() ? std::optional(FromQt(file.absoluteFilePath())) : std::nullopt;
}

void TakeDroppedFile(QWidget* widget, std::function<bool(TextView path)> admits,
                     std::function<void(const Text& path)> take)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(new DropFilter(widget, std::move(admits), std::move(take)));
    // Else a box would take the drop as a text.
    for (QWidget* box : widget->findChildren<QWidget*>())
        box->setAcceptDrops(false);
}

} // namespace orvane
