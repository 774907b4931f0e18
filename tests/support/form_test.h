#pragma once

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

namespace orvane::testing {

/// A window, shown over a workbench of doubles.
template <class Form>
class FormTest : public ::testing::Test
{
protected:
    FormTest() { m_form.show(); }

    /// What the author was told since the last call.
    Texts Said() { return m_desk.Dialogs.TakeSaid(); }

    FakeDesk m_desk;
    Form m_form{m_desk.Bench};
};

} // namespace orvane::testing
