#include "core/setting_keys.h"
#include "program/ov_main_form.h"
#include "services/recent_files.h"
#include "tests/sessions/session_drafts.h"
#include "tests/sessions/session_hands.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iostream>

namespace orvane::testing {

namespace {

constexpr int stepsOfSession = 40;
constexpr int mostEscapes = 60;
constexpr int actingLaterMs = 150;

constexpr Trouble troubles[] = {Trouble::DiskFull,    Trouble::IoError,    Trouble::NoPermission,
                                Trouble::Interrupted, Trouble::ShortWrite, Trouble::FullHalfway};

/// An author who uses the windows of the program by chance, while other programs save the page, the
/// disk has trouble and the program is killed.
class Session
{
public:
    explicit Session(unsigned seed) : m_author(seed, m_home), m_pages(m_home, m_author.Pick(4))
    {
        for (const char* file :
             {"orvane.js", "Typewriter9.class", "AudioLoader3.class", "CoolTool3.class"})
            m_home.Put(std::string("home/") + file, file);
        m_disk.BeforeRename = [this](const std::string& to) {
            if (to != m_home.At("site/a.html") || !std::exchange(m_isSavedNext, false))
                return;
            m_pages.SaveByOthers("a.html");
            m_step.IsOvertaken = true;
        };
        SessionProgram program(m_disk, m_home, m_author);
        program.Settings.Put(u"Misc", u"HTMLEditor", u"Other", u"Orvane");
        program.Bench.Settings.Put(settingKeys::runsToday, m_author.Does(40) ? u"1" : u"0");
        if (m_author.Does(70))
            PutRecentFile(program.Settings, recentPages, m_home.TextAt("site/a.html"));
    }

    void Run()
    {
        try {
            while (m_hands.Steps < stepsOfSession && !HasFailed())
                RunProgram();
        } catch (const std::exception& thrown) {
            ADD_FAILURE() << thrown.what();
        }
        if (HasFailed())
            ADD_FAILURE() << "after these steps:" << m_hands.Log;
    }

private:
    static bool HasFailed() { return ::testing::Test::HasFailure(); }

    /// From the start of the program through its end or death.
    void RunProgram()
    {
        m_program.emplace(m_disk, m_home, m_author);
        m_program->Desk.Start();
        m_escapes = 0;
        Soon();
        m_loop.exec();
        m_program.reset();
        if (IsDead())
            m_drafts.Killed();
        m_disk.Heal();
        m_isKill = m_isTroubleSeen = false;
    }

    bool IsDead() const { return m_isKill && m_disk.Struck(); }
    bool IsOver() const { return m_hands.Steps >= stepsOfSession || IsDead() || HasFailed(); }

    /// Acts when what the program put off for a moment is done.
    void Soon(int rounds = 3)
    {
        const int wait = std::exchange(m_hands.Deed.ActsLater, false) ? actingLaterMs : 0;
        QTimer::singleShot(wait, &m_context, [this, rounds] {
            if (rounds > 0)
                Soon(rounds - 1);
            else
                Act();
        });
    }

    void Act()
    {
        QWidget* front = QApplication::activePopupWidget();
        if (front == nullptr)
            front = QApplication::activeModalWidget();
        QWidget* main = m_program->Desk.MainForm();
        Look(front == nullptr ? *main : *front);
        if (front == nullptr && (IsOver() || !main->isVisible()))
            return m_loop.quit();
        // Before it acts: that may open a window with an event loop of its own.
        Soon();
        if (IsOver())
            return Leave(*front);
        ++m_hands.Steps;
        Step(front == nullptr ? *main : *front);
    }

    void Leave(QWidget& front)
    {
        m_hands.Escape(front);
        if (++m_escapes < mostEscapes)
            return;
        ADD_FAILURE() << front.objectName().toStdString() << " cannot be left" << m_hands.Log;
        std::abort();
    }

    void Step(QWidget& front)
    {
        m_step.BringsBack = front.objectName() == QStringLiteral("BringBack");
        m_isPuttingIn = front.objectName() == QStringLiteral("PutIn");
        m_isTagPasted = m_program->Core.EditMode;
        const std::size_t dice = m_author.Pick(100);
        if (dice < 3) {
            m_hands.Note(front, "others save the page when it is written next");
            m_isSavedNext = true;
        } else if (dice < 6) {
            m_hands.Note(front, "others save the page");
            m_pages.SaveByOthers(m_author.Does(80) ? "a.html" : "new.html");
            m_isAway = m_author.Does(50);
        } else if (dice < 10) {
            MakeTrouble(front);
        } else {
            m_hands.Use(front);
        }
    }

    void MakeTrouble(QWidget& front)
    {
        m_isKill = m_author.Does(40);
        const Trouble trouble =
            m_isKill ? Trouble::BrokenFromThere : troubles[m_author.Pick(std::size(troubles))];
        const int call = 1 + static_cast<int>(m_author.Pick(90));
        m_hands.Note(front, std::string(m_isKill ? "killed" : NameOf(trouble)) + " in " +
                                std::to_string(call) + " calls");
        m_disk.Arm(trouble, call);
        m_isTroubleSeen = false;
    }

    /// Looks at everything after a step.
    void Look(QWidget& front)
    {
        const auto deed = std::exchange(m_hands.Deed, {});
        m_step.MayWrite = deed.MayWrite;
        m_step.SavesNewPage = std::exchange(m_author.SavesNewPage, false);
        m_step.IsTroubled = m_disk.Struck() && !std::exchange(m_isTroubleSeen, m_disk.Struck());
        m_step.IsKilled = IsDead();
        const bool isWritten = m_pages.Look(m_step);
        m_step.IsOvertaken = false;
        const bool isCopied = !std::exchange(m_program->Clipboard.Content, {}).empty();
        if (IsDead())
            return m_drafts.Forget();
        if (m_step.IsTroubled)
            m_disk.Heal();
        // Time passes in a step of its own alone, so that a session can be played again.
        for (QTimer* timer : front.findChildren<QTimer*>())
            if (timer->isActive())
                timer->start();
        auto* wizard = dynamic_cast<WizardForm*>(&front);
        if (isWritten || isCopied || (m_isPuttingIn && deed.MayWrite))
            m_drafts.Forget();
        if (!front.inherits("QMenu"))
            m_drafts.Look(wizard, deed.OpensFresh && !m_isTagPasted && !m_step.IsTroubled);
        if (deed.LetsTimePass && wizard != nullptr)
            m_drafts.Keep();
        if (m_step.IsTroubled)
            m_drafts.Forget();
        if (wizard != nullptr)
            NoteMade(*wizard);
        LookAtList(front);
        EXPECT_TRUE(front.isEnabled()) << front.objectName().toStdString();
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    }

    /// Notes what the wizard would deliver now.
    void NoteMade(const WizardForm& wizard)
    {
        const SessionEffect* effect = EffectOf(wizard.Kind());
        const std::string fields = ToUtf8(wizard.Fields());
        const std::string words =
            fields.substr(fields.find(effect->Fields.front() + std::string(": ")));
        m_step.Name = effect->Name();
        m_step.Words.clear();
        if (fields.find("ReadFromFile: yes") != std::string::npos)
            return; // they lie in a file
        m_step.Words = words.substr(words.find(' ') + 1,
                                    words.find_first_of("\xC3\\\n") - words.find(' ') - 1);
    }

    /// Compares the list of a page's effects, when it is in front, with the page.
    void LookAtList(QWidget& front)
    {
        m_isAway = m_isAway || m_step.IsTroubled;
        if (front.objectName() != QStringLiteral("PageEffects"))
            return;
        if (std::exchange(m_isAway, false)) {
            QEvent back(QEvent::ActivationChange);
            QApplication::sendEvent(&front, &back);
            m_isAway = m_disk.Struck() && !m_isTroubleSeen;
            if (m_isAway)
                return; // that trouble is looked at after the next step
        }
        std::vector<std::string> titles;
        for (const Text& row : RowsOf(front, "lstPageEffects"))
            titles.push_back(ToUtf8(row.substr(0, row.find(u'\n'))));
        m_pages.CompareList(ToUtf8(WordsOf(front, "txtPage")), titles);
    }

    SessionHome m_home;
    SessionDisk m_disk{m_home.At("")};
    SessionAuthor m_author;
    SessionPages m_pages;
    SessionDrafts m_drafts;
    SessionHands m_hands{m_author, m_home};
    std::optional<SessionProgram> m_program;
    QEventLoop m_loop;
    QObject m_context; ///< destroyed first
    SessionStep m_step;
    int m_escapes = 0;            ///< since the program is left
    bool m_isKill = false;        ///< the trouble to come is a kill
    bool m_isTroubleSeen = false; ///< what struck was seen
    bool m_isTagPasted = false;   ///< the next wizard opens with a tag
    bool m_isSavedNext = false;   ///< others save the page in the moment in which it is written
    bool m_isPuttingIn = false;   ///< the page may get the bytes that it has
    bool m_isAway = false;        ///< the author is in another program's window
};

TEST(SessionTest, LeavesPagesListsDraftsAndWindowsAsTheyShouldBe)
{
    const int first = qEnvironmentVariableIntValue("ORVANE_SEED");
    const int count = qEnvironmentVariableIntValue("ORVANE_SESSIONS");
    for (int seed = first; seed < first + std::max(count, 1) && !HasFailure(); ++seed) {
        SCOPED_TRACE("again by ORVANE_SEED=" + std::to_string(seed));
        std::cout << "session " << seed << std::endl; // a crash tells nothing else
        Session(static_cast<unsigned>(seed)).Run();
    }
}

} // namespace
} // namespace orvane::testing
