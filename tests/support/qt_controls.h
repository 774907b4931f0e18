#pragma once

#include "core/catalogue.h"
#include "core/text.h"

#include <QAbstractButton>

#include <gtest/gtest.h>

#include <functional>
#include <typeinfo>
#include <vector>

namespace orvane::testing {

using orvane::Find; // in texts, beside the one in windows

/// The visible control of that object name in a window, or the hidden one when none is visible;
/// fails the test when there is none of that kind.
template <class Control>
Control* Find(QWidget& window, const char* name)
{
    Control* found = nullptr;
    for (Control* control : window.findChildren<Control*>(QString::fromUtf8(name)))
        if (found == nullptr || control->isVisibleTo(&window))
            found = control;
    EXPECT_NE(found, nullptr) << "no control " << name;
    return found;
}

/// Opens the catalogue's page with this effect and gives the effect's button.
QAbstractButton* EffectButtonIn(QWidget& catalogue, EffectKind kind);

/// Types into a text box as the author would, at the cursor; the text that is there stays.
void Type(QWidget& window, const char* name, TextView text);

/// Clicks a button that the author could click; fails the test when it is hidden or disabled.
void Click(QWidget& window, const char* name);

/// Picks the entry of a combo box with these words, as the author would.
void Pick(QWidget& window, const char* name, const char* words);

/// Presses and releases a key in a window or one of its controls.
void Press(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// The words of a label or button, or the text of a box; empty for any other control.
Text WordsOf(QWidget& window, const char* name);

/// The words of a list box's rows; fails the test when there is no such list.
std::vector<Text> RowsOf(QWidget& window, const char* name);

/// The row of a list box with these words; fails the test when there is none.
int RowWith(QWidget& window, const char* name, TextView words);

/// The selected row of a list box, or -1.
int SelectedRowOf(QWidget& window, const char* name);

/// Processes the events that are waiting in the event loop.
void LetRun();

/// Fails the test, with the control's name, unless among the visible controls of the window object
/// names and access keys are unique, each one that takes the focus has an accessible name, Tab goes
/// in reading order, and no label is cut off.
void ExpectAccessible(QWidget& window);

/// Calls `action` from the event loop again and again until it gives true. `front` is the active
/// modal window or null; `mayWait` becomes false when the action has waited too long.
void Poll(const std::function<bool(QWidget* front, bool mayWait)>& action);

/// Calls `action` with a modal window of the type `Form` once it is in front, from that window's
/// own event loop. When it does not appear, fails the test and closes the window that is in front.
template <class Form, class Action>
void WhenInFront(Action action)
{
    Poll([action](QWidget* front, bool mayWait) {
        if (auto* form = dynamic_cast<Form*>(front)) {
            action(*form);
            return true;
        }
        if (mayWait)
            return false;
        ADD_FAILURE() << "the window did not come: " << typeid(Form).name();
        if (front != nullptr)
            front->close();
        return true;
    });
}

} // namespace orvane::testing
