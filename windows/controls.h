#pragma once

#include "core/complaint.h"

#include <QSize>
#include <QString>

class QAction;
class QFormLayout;
class QLabel;
class QLayoutItem;
class QMenu;
class QMenuBar;
class QPushButton;
class QWidget;

namespace orvane {

class Dialogs;
class HelpViewer;

/// The name as the toolkit's text type.
QString ToQt(ControlName name);

/// The object name of one member of a group of controls, such as "optInsertMode(0)".
QString MemberName(ControlName group, int index);

/// What a screen reader says for a label: its words without access key and colon.
QString SpokenName(TextView label);

/// A button that Enter presses while it has the focus; it has no parent yet.
QPushButton* MakeButton(ControlName name, TextView caption, TextView tip = {});

/// Adds a menu to the menu bar, or a sub-menu; "&" in the caption marks the access key.
QMenu* AddMenu(QMenuBar& bar, ControlName name, TextView caption);
QMenu* AddMenu(QMenu& menu, ControlName name, TextView caption);

/// Adds a command to a menu; "&" in the caption marks the access key.
QAction* AddCommand(QMenu& menu, ControlName name, TextView caption);

/// Opens the window's help topic on F1.
void OpenHelpOnF1(QWidget* window, HelpViewer& help, int topic);

/// Shows the complaint's words and gives its control the focus; the focus stays when there is no
/// control, or none that is on the page that is shown.
void ShowComplaint(QWidget& window, Dialogs& dialogs, const Complaint& complaint);

/// Gives the control the focus. A number or choice in it is selected, so that what the author types
/// replaces it.
void LeadTo(QWidget& control);

/// Keeps a letter that is pressed together with Alt out of a field, whether or not it is an access
/// key of the window at present.
void LeaveAltToAccessKeys(QWidget& field);

/// Lets Tab walk the window's controls in reading order, which is the order of its layouts.
void SetReadingOrder(QWidget& window);

/// The first control of a page in reading order that Tab stops at; null when there is none.
QWidget* FirstControl(QWidget& page);

/// A row of a form layout.
struct FormRow
{
    QFormLayout* Rows = nullptr;
    int Row = 0;
    int Role = 0; ///< QFormLayout::FieldRole, or SpanningRole
};

/// The row in which the control stands, whose parent has the form layout; without a layout when the
/// parent lays out otherwise.
FormRow RowOf(const QWidget* control);

/// What stands in the control's row beside the label; null outside of a form layout.
QLayoutItem* CellOf(const QWidget* control);

/// The label of the form row in which the control stands; null when there is no row or no label.
QLabel* LabelOf(QWidget* control);

/// The label in the control's row directly to the left of it (place -1) or to the right (place 1);
/// null when there is none.
QLabel* WordsBeside(QWidget* control, int place);

/// Shows or hides the form row in which the control stands, with its label; does nothing for a
/// control outside of a form layout.
void ShowRow(QWidget* control, bool isShown);

/// A size in pixels from one in twips, of which 15 make a pixel.
QSize FromTwips(int width, int height);

} // namespace orvane
