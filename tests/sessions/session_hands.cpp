#include "tests/sessions/session_hands.h"

#include "program/ov_main_form.h"
#include "tests/support/qt_controls.h"
#include "windows/link_label.h"

#include <QAbstractButton>
#include <QAction>
#include <QKeySequence>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <algorithm>

namespace orvane::testing {

namespace {

/// How often controls are pressed; all others once.
const std::map<QString, std::size_t> weights = {
    {"cmdNext", 40},   {"cmdDone", 40},       {"cmdPutInto", 99},   {"cmdAutoInsert", 60},
    {"cmdPutIn", 30},  {"cmdPutBack", 30},    {"cmdTakeOut", 15},   {"cmdChange", 15},
    {"cmdBrowse", 20}, {"cmdAddEffect", 10},  {"cmdBringBack", 12}, {"cmdPageEffects", 15},
    {"cmdCancel", 4},  {"lstPageEffects", 9}, {"chkRunsToday", 3},  {"cmdSaveWebPage", 40}};

constexpr const char* commands[] = {"mnuPageEffects", "mnuBringBack",   "mnuOpenRecipe",
                                    "mnuSeeThemAll",  "mnuPreferences", "mnuEditApplet",
                                    "mnuHelpAbout"};

constexpr const char* keys[] = {
    "Tab", "Tab",    "Shift+Backtab", "Return", "Space", "Down",  "Up",
    "P",   "Delete", "F12",           "Ctrl+Z", "Alt+N", "Alt+D", "Alt+N, Return"};

const char* OneOf(const auto& names, SessionAuthor& author)
{
    return names[author.Pick(std::size(names))];
}

QWidget& FocusIn(QWidget& front)
{
    return front.focusWidget() == nullptr ? front : *front.focusWidget();
}

/// Whether it brings earlier fields into a wizard; drafts are taken up as wizards open.
bool IsOffer(const QWidget& control)
{
    return dynamic_cast<const LinkLabel*>(&control) != nullptr &&
           dynamic_cast<const WizardForm*>(control.window()) != nullptr;
}

} // namespace

const SessionEffect* EffectOf(EffectKind kind)
{
    const auto found = std::ranges::find(sessionEffects, kind, &SessionEffect::Kind);
    return found == sessionEffects.end() ? nullptr : &*found;
}

void SessionHands::Note(const QWidget& front, const std::string& what)
{
    Log += "\n" + std::to_string(Steps) + ". " + front.objectName().toStdString() + ": " + what;
}

void SessionHands::Use(QWidget& front)
{
    const std::size_t dice = m_author.Pick(100);
    if (front.inherits("QMenu"))
        return UseMenu(front);
    if (dice < 4)
        return LetTimePass(front);
    if (dice < 7)
        return Escape(front);
    if (front.inherits("orvane::OVMainForm"))
        return UseMainWindow(front);
    if (front.inherits("orvane::ChooseEffectForm"))
        return OpenWizard(front);
    if (auto* wizard = dynamic_cast<WizardForm*>(&front); wizard && Fill(*wizard, dice < 30))
        return;
    return dice < 18 ? PressKey(front) : PressControl(front);
}

void SessionHands::UseMenu(QWidget& menu)
{
    const int down = m_author.Does(50) ? 1 + static_cast<int>(m_author.Pick(3)) : 0;
    Note(menu, "entry " + std::to_string(down));
    Deed.MayWrite = true;
    for (int i = 0; i < down; ++i)
        QTest::keyClick(&menu, Qt::Key_Down);
    QTest::keyClick(&menu, down == 0 ? Qt::Key_Escape : Qt::Key_Return);
}

void SessionHands::UseMainWindow(QWidget& window)
{
    if (m_author.Does(65))
        return OpenWizard(window);
    if (m_author.Does(70)) {
        Note(window, "a page is dropped");
        emit static_cast<OVMainForm&>(window).PageEffectsWanted(m_home.TextAt("site/a.html"));
    } else {
        const char* command = OneOf(commands, m_author);
        Note(window, command);
        window.findChild<QAction*>(QString::fromUtf8(command))->trigger();
    }
}

void SessionHands::OpenWizard(QWidget& catalogue)
{
    const SessionEffect& effect = sessionEffects.at(m_author.Pick(sessionEffects.size()));
    Note(catalogue, effect.Title());
    Deed.OpensFresh = true;
    EffectButtonIn(catalogue, effect.Kind)->click();
}

void SessionHands::LetTimePass(QWidget& front)
{
    Note(front, "time passes");
    for (QTimer* timer : front.findChildren<QTimer*>())
        if (timer->isActive())
            timer->start(0);
    Deed.LetsTimePass = true;
}

void SessionHands::Escape(QWidget& front)
{
    Note(front, "Escape");
    QTest::keyClick(&FocusIn(front), Qt::Key_Escape);
}

/// Fills the fields that can be seen, if they are empty or `anew`; false when there is none.
bool SessionHands::Fill(WizardForm& wizard, bool anew)
{
    const SessionEffect* effect = EffectOf(wizard.Kind());
    bool isFilled = false;
    for (const char* name : effect == nullptr ? std::vector<const char*>() : effect->Fields) {
        auto* field = Find<QWidget>(wizard, name);
        if (!field->isVisible() || !(anew || WordsOf(wizard, name).empty()))
            continue;
        const std::string number = std::to_string(++m_number);
        Note(wizard, name + (" " + number));
        Press(*field, Qt::Key_A, Qt::ControlModifier);
        const bool isNumber = name != effect->Fields.front();
        Type(wizard, name,
             FromUtf8(isNumber ? number : "plums " + number + " \xC3\xA9\xE2\x82\xAC"));
        isFilled = true;
    }
    return isFilled;
}

void SessionHands::PressKey(QWidget& front)
{
    const char* name = OneOf(keys, m_author);
    const QPointer<QWidget> window = &front;
    Note(front, name + (" in " + FocusIn(front).objectName().toStdString()));
    const QKeySequence sequence(QString::fromUtf8(name));
    for (int i = 0; i < sequence.count() && window && !IsOffer(FocusIn(front)); ++i) {
        const QKeyCombination key = sequence[static_cast<uint>(i)];
        // A button acts a moment after its access key.
        Deed.ActsLater = Deed.ActsLater || key.keyboardModifiers() == Qt::AltModifier;
        Deed.MayWrite = true;
        QTest::keyClick(&FocusIn(front), key.key(), key.keyboardModifiers());
    }
}

/// Presses a button or a link that can be seen, or a key in a list.
void SessionHands::PressControl(QWidget& front)
{
    std::vector<QWidget*> all;
    for (QWidget* control : front.findChildren<QWidget*>()) {
        const bool acts = control->inherits("QAbstractButton") ||
                          control->inherits("QListWidget") ||
                          (dynamic_cast<LinkLabel*>(control) != nullptr && !IsOffer(*control));
        if (!acts || !control->isVisible() || !control->isEnabled() || control->window() != &front)
            continue;
        const auto weight = weights.find(control->objectName());
        all.insert(all.end(), weight == weights.end() ? 1 : weight->second, control);
    }
    if (all.empty())
        return Escape(front);
    QWidget* chosen = all[m_author.Pick(all.size())];
    constexpr Qt::Key listKeys[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Delete};
    const Qt::Key key = listKeys[m_author.Pick(std::size(listKeys))];
    Note(front, chosen->objectName().toStdString() + " " + std::to_string(key));
    Deed.MayWrite = true;
    if (auto* button = qobject_cast<QAbstractButton*>(chosen))
        button->click();
    else
        Press(*chosen, chosen->inherits("QListWidget") ? key : Qt::Key_Return);
}

} // namespace orvane::testing
