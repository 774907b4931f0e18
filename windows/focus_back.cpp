#include "windows/focus_back.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace orvane {

namespace {

/// The window that takes the keys when no other has taken them.
void ActivateFront(QWidget& owner)
{
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* front = modal == nullptr ? owner.window() : modal;
    if (front->isVisible() && QApplication::activeWindow() != front)
        front->activateWindow();
}

} // namespace

void GiveFocusBack(const QDialog& dialog)
{
    QWidget* owner = dialog.parentWidget();
    if (owner == nullptr)
        return;
    // Later: the next window may come up directly after this one.
    QObject::connect(
        &dialog, &QDialog::finished, owner,
        [owner] { QTimer::singleShot(0, owner, [owner] { ActivateFront(*owner); }); },
        Qt::SingleShotConnection);
}

} // namespace orvane
