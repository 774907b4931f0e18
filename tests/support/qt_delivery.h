#pragma once

#include "delivery/preview_form.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <memory>

namespace orvane::testing {

/// The delivery wizard over a workbench of doubles, for an author whose editor is "Other".
class DeliveryTest : public ::testing::Test
{
protected:
    DeliveryTest() { KnowEditor(u"Other"); }

    /// Shows a new delivery wizard for the payload, in place of an earlier one.
    void Open()
    {
        m_form.reset();
        m_form = std::make_unique<PreviewForm>(m_desk.Bench, m_payload, nullptr, m_windows);
        m_form->show();
        LetRun();
    }

    /// Stores the name of the author's page editor; empty for none.
    void KnowEditor(TextView name) { m_desk.Settings.Put(u"Misc", u"HTMLEditor", name, u"Orvane"); }
    Text Heading() { return WordsOf(*m_form, "lblHeading"); }
    Text Focused() { return FromQt(m_form->focusWidget()->objectName()); }
    bool IsShown(const char* name) { return Find<QWidget>(*m_form, name)->isVisible(); }
    std::string Bytes(const Text& path) { return m_desk.Files.Contents[path]; }

    /// Chooses an insertion mode on the page with the methods and clicks "Next".
    void GoBy(int insertMode)
    {
        Find<QRadioButton>(*m_form, ("optInsertMode(" + std::to_string(insertMode) + ")").c_str())
            ->click();
        Click(*m_form, "cmdNext");
    }

    /// Presses a key in the control that has the focus.
    void PressWhereItStands(Qt::Key key)
    {
        m_form->activateWindow();
        QTest::keyClick(m_form->focusWidget(), key);
        LetRun();
    }

    FakeDesk m_desk;
    EffectPayload m_payload;
    PreviewWindows m_windows;
    std::unique_ptr<PreviewForm> m_form;
};

} // namespace orvane::testing
