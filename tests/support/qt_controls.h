#pragma once

#include "core/text.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <typeinfo>

namespace orvane::testing {

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

/// Types into a text box as the author would; what stood there stays.
void Type(QWidget& window, const char* name, TextView text);

/// Clicks a button that the author could click; fails the test when it is hidden or disabled.
void Click(QWidget& window, const char* name);

/// Presses a key in a window or one of its controls.
void Press(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// The words of a label or button, or the text of a box.
Text WordsOf(QWidget& window, const char* name);

/// Runs what waits in the event loop.
void LetRun();

/// What every window owes the author; fails the test with the control's name: object names and
/// access keys unique among the visible ones, an accessible name for each control that takes focus,
/// Tab in reading order, no text cut off.
void ExpectAccessible(QWidget& window);

/// Calls `action` from the event loop, with the modal window in front and whether it is still worth
/// waiting, until `action` gives true.
void Poll(const std::function<bool(QWidget* front, bool mayWait)>& action);

/// Acts on a modal window once it is in front, from within its own event loop; fails the test and
/// closes whatever is there when it does not come.
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
