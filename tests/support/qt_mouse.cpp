#include "tests/support/qt_mouse.h"

#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace orvane::testing {

namespace {

void Send(QListWidget& list, QEvent::Type type, Qt::MouseButton button, QPoint place)
{
    const QWidget& view = *list.viewport();
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, place, view.mapToGlobal(place), button, held, Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &event);
}

void ClickAt(QListWidget& list, QPoint place, bool isDouble)
{
    Send(list, QEvent::MouseButtonPress, Qt::LeftButton, place);
    Send(list, QEvent::MouseButtonRelease, Qt::LeftButton, place);
    if (isDouble) {
        Send(list, QEvent::MouseButtonDblClick, Qt::LeftButton, place);
        Send(list, QEvent::MouseButtonRelease, Qt::LeftButton, place);
    }
    LetRun();
}

/// The middle of a row, which is scrolled into sight.
QPoint PlaceOf(QListWidget& list, int row)
{
    EXPECT_LT(row, list.count());
    list.scrollToItem(list.item(row));
    return list.visualItemRect(list.item(row)).center();
}

/// What a drag over a widget does that ends there.
bool Drop(QWidget& target, QPoint place, const QMimeData& dragged, Qt::DropActions action)
{
    QDragEnterEvent enter(place, action, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    QDragMoveEvent move(place, action, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &move);
    if (!enter.isAccepted() || !move.isAccepted())
        return false;
    QDropEvent drop(place, action, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
    LetRun();
    EXPECT_TRUE(!dragged.hasUrls() || drop.dropAction() == Qt::CopyAction) << "the files stay";
    return drop.isAccepted();
}

} // namespace

void ClickRow(QWidget& window, const char* name, int row)
{
    if (auto* list = Find<QListWidget>(window, name))
        ClickAt(*list, PlaceOf(*list, row), false);
}

void DoubleClickRow(QWidget& window, const char* name, int row)
{
    if (auto* list = Find<QListWidget>(window, name))
        ClickAt(*list, PlaceOf(*list, row), true);
}

void DoubleClickBeside(QWidget& window, const char* name)
{
    if (auto* list = Find<QListWidget>(window, name))
        ClickAt(*list, list->viewport()->rect().bottomLeft(), true);
}

void RightPressRow(QWidget& window, const char* name, int row)
{
    auto* list = Find<QListWidget>(window, name);
    if (list == nullptr)
        return;
    const QPoint place = PlaceOf(*list, row);
    Send(*list, QEvent::MouseButtonPress, Qt::RightButton, place);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, place, list->viewport()->mapToGlobal(place));
    QApplication::sendEvent(list->viewport(), &menu);
    Send(*list, QEvent::MouseButtonRelease, Qt::RightButton, place);
    LetRun();
}

bool DragRow(QWidget& window, const char* name, int from, int to)
{
    auto* list = Find<QListWidget>(window, name);
    ClickRow(window, name, from);
    const std::unique_ptr<QMimeData> row(
        list->model()->mimeData(list->selectionModel()->selectedIndexes()));
    const QPoint half(0, to > from ? 2 : -2);
    return Drop(*list->viewport(), PlaceOf(*list, to) + half, *row, Qt::MoveAction);
}

bool DropFiles(QWidget& target, const std::vector<Text>& paths)
{
    QList<QUrl> urls;
    for (const Text& path : paths)
        urls.push_back(path.find(u"://") == Text::npos ? QUrl::fromLocalFile(ToQt(path))
                                                       : QUrl(ToQt(path)));
    QMimeData files;
    files.setUrls(urls);
    return Drop(target, target.rect().center(), files, Qt::CopyAction | Qt::MoveAction);
}

} // namespace orvane::testing
