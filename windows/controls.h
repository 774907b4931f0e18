#pragma once

#include "core/complaint.h"

#include <QSize>
#include <QString>

class QAction;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;
class QWidget;

namespace orvane {

class Dialogs;
class HelpViewer;

/// The name as the toolkit takes it.
QString ToQt(ControlName name);

/// The object name of one member of a group of controls, such as "optInsertMode(0)".
QString MemberName(ControlName group, int index);

/// What a screen reader says for a label: its words without access key and colon.
QString SpokenName(TextView label);

/// A button that Enter presses while it has the focus; left without a parent.
QPushButton* MakeButton(ControlName name, TextView caption, TextView tip = {});

/// A menu of the menu bar, or a sub-menu; "&" in the caption marks the access key.
QMenu* AddMenu(QMenuBar& bar, ControlName name, TextView caption);
QMenu* AddMenu(QMenu& menu, ControlName name, TextView caption);

/// A command of a menu.
QAction* AddCommand(QMenu& menu, ControlName name, TextView caption);

/// Opens the window's help topic on F1.
void OpenHelpOnF1(QWidget* window, HelpViewer& help, int topic);

/// Shows the complaint's words and gives its control the focus; without a control the focus stays.
void Report(QWidget& window, Dialogs& dialogs, const Complaint& complaint);

/// Lets Tab walk the window's controls in reading order, which is the order of its layouts.
void SetReadingOrder(QWidget& window);

/// The first control of a page in reading order that Tab stops at; null when there is none.
QWidget* FirstControl(QWidget& page);

/// The label of the form row in which the control stands; null for a row without one.
QLabel* LabelOf(QWidget* control);

/// The words that stand in the control's row right before it (place -1) or behind it (place 1);
/// null when there are none.
QLabel* WordsBeside(QWidget* control, int place);

/// Shows or hides the row of a form layout in which the control stands, with its label.
void ShowRow(QWidget* control, bool isShown);

/// A size on screen, from the twips in which the windows were measured (15 to a pixel).
QSize FromTwips(int width, int height);

} // namespace orvane
