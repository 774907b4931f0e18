#pragma once

#include "tests/sessions/session_pages.h"
#include "tests/sessions/session_world.h"
#include "windows/wizard_form.h"

#include <string>

namespace orvane::testing {

/// The effect of that kind, or null.
const SessionEffect* EffectOf(EffectKind kind);

/// Uses the windows of the program by chance.
class SessionHands
{
public:
    /// Both must outlive the object.
    SessionHands(SessionAuthor& author, const TestFolder& home) : m_author(author), m_home(home) {}

    /// Does something in the window in front.
    void Use(QWidget& front);

    void Escape(QWidget& front);

    /// Adds a line to the log.
    void Note(const QWidget& front, const std::string& what);

    std::string Log; ///< of all steps
    int Steps = 0;   ///< so far

    /// What the step does. It is set before the step acts: windows have event loops of their own.
    struct
    {
        bool MayWrite = false;     ///< something is pressed that may write a page
        bool OpensFresh = false;   ///< a wizard from the catalogue
        bool LetsTimePass = false; ///< so much that a wizard keeps its fields
        bool ActsLater = false;    ///< by a moment
    } Deed;

private:
    void UseMenu(QWidget& menu);
    void UseMainWindow(QWidget& window);
    void OpenWizard(QWidget& catalogue);
    void LetTimePass(QWidget& front);
    bool Fill(WizardForm& wizard, bool anew);
    void PressKey(QWidget& front);
    void PressControl(QWidget& front);

    SessionAuthor& m_author;
    const TestFolder& m_home;
    int m_number = 0;
};

} // namespace orvane::testing
