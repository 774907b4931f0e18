#pragma once

#include "tests/support/qt_controls.h"
#include "windows/link_label.h"
#include "windows/wizard_form.h"

#include <QPointer>

#include <map>
#include <utility>

namespace orvane::testing {

/// What the wizards of a session were left with, as far as that is known.
class SessionDrafts
{
public:
    /// Looks at the wizard in front, or at null. Fails the test where one that `isFresh`, opened in
    /// the step before, does not offer what its effect was left with; that is then taken up.
    void Look(WizardForm* front, bool isFresh)
    {
        const bool isOther = front == nullptr || front != m_wizard;
        if (std::exchange(m_isOpen, front != nullptr) && isOther) {
            m_fields = m_wizard ? m_wizard->Fields() : m_fields;
            Keep();
        }
        if (front == nullptr)
            return;
        m_wizard = front;
        m_kind = front->Kind();
        if (isOther && isFresh)
            TakeUp();
        m_fields = front->Fields();
        if (isOther)
            m_kept = m_fields;
    }

    /// The wizard keeps its fields, if they are others than those that it opened with.
    void Keep()
    {
        if (m_fields != m_kept)
            m_drafts[m_kind] = m_fields;
        m_kept = m_fields;
    }

    /// Nobody knows what is kept: the disk had trouble, or the effect was delivered.
    void Forget() { m_drafts.erase(m_kind); }

    /// The program was killed, with the wizard as it was at the last look.
    void Killed()
    {
        if (std::exchange(m_isOpen, false) && m_fields != m_kept)
            Forget();
        m_kept = m_fields;
    }

private:
    void TakeUp()
    {
        const auto draft = m_drafts.find(m_kind);
        if (draft == m_drafts.end() || draft->second == m_wizard->Fields())
            return;
        EXPECT_TRUE(Find<LinkLabel>(*m_wizard, "lblTakeUp")->isVisible());
        Press(*Find<LinkLabel>(*m_wizard, "lblTakeUp"), Qt::Key_Return);
        EXPECT_EQ(ToUtf8(m_wizard->Fields()), ToUtf8(draft->second));
    }

    QPointer<WizardForm> m_wizard;
    bool m_isOpen = false;
    EffectKind m_kind{};
    Text m_fields; ///< at the last look
    Text m_kept;   ///< as they were last kept, or as the wizard opened
    std::map<EffectKind, Text> m_drafts;
};

} // namespace orvane::testing
