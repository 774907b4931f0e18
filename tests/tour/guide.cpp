#include "tests/tour/guide.h"

#include "core/catalogue.h"
#include "tests/support/qt_controls.h"
#include "tests/support/qt_mouse.h"
#include "windows/color_swatch.h"
#include "windows/link_label.h"
#include "windows/multi_line_box.h"
#include "windows/qt_text.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>

namespace orvane::testing {

namespace {

constexpr int patienceMs = 10000;

/// What the step is about, as far as the author can use it now.
QObject* TargetOf(QWidget& window, const Step& step)
{
    const QString name = QString::fromStdString(step.Name);
    if (step.Name.starts_with('@'))
        return &window;
    for (auto* control : window.findChildren<QWidget*>(name))
        if (control->isVisibleTo(&window) && control->isEnabled())
            return control;
    auto* command = window.findChild<QAction*>(name);
    return command != nullptr && command->isEnabled() ? command : nullptr;
}

bool LeavesPage(const Step& step)
{
    return step.Name == "cmdNext" || step.Name == "cmdDone" || step.Name == "cmdOK";
}

std::int32_t PackedColorOf(const QString& name)
{
    const QColor color(name);
    return color.blue() << 16 | color.green() << 8 | color.red();
}

QWidget* WindowNamed(QWidget& front, const QString& name)
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == name)
            return window;
    return front.findChild<QWidget*>(name);
}

} // namespace

void Guide::Lead(const std::string& tour, std::vector<Step> steps, Folders folders)
{
    m_folders = std::move(folders);
    m_tour = QString::fromStdString(tour);
    m_steps = std::move(steps);
    m_next = 0;
    m_pause = 0;
    m_pictureCount = 0;
    m_patience.start();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [this] { Go(); });
    timer.start(5);
    m_road.exec();
}

/// Chooses the next step; it is done by itself, since it may open windows that wait for their end.
void Guide::Go()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (m_isUnderWay || !m_patience.hasExpired(m_pause))
        return;
    if (m_next == m_steps.size() && modal == nullptr)
        return m_road.quit();
    QWidget& front = modal == nullptr ? m_mainForm : *modal;
    if (m_next == m_steps.size() || TargetOf(front, m_steps[m_next]) == nullptr) {
        if (m_patience.hasExpired(patienceMs))
            GiveUp();
        return;
    }
    m_isUnderWay = true;
    m_pause = 0;
    m_patience.restart();
    QTimer::singleShot(0, &front, [this, &front, step = m_steps[m_next++]] {
        Do(front, step);
        // The road goes on in the window that this may open.
        m_isUnderWay = false;
        Click(front, step);
    });
}

void Guide::GiveUp()
{
    ADD_FAILURE() << "the tour stops in front of "
                  << (m_next < m_steps.size() ? m_steps[m_next].Name : "a window that stays open");
    for (const Text& words : m_dialogs.TakeSaid())
        ADD_FAILURE() << "the author was told: " << ToUtf8(words);
    m_next = m_steps.size();
    while (QWidget* window = QApplication::activeModalWidget()) {
        TakePicture(*window, m_tour + QStringLiteral("_failed"));
        window->close();
    }
}

void Guide::Do(QWidget& front, const Step& step)
{
    if (Passing)
        Passing(front);
    if (step.Name.starts_with('@'))
        return Command(front, step);
    if (step.Sign == '=')
        return Fill(front, step);
    if (step.Sign == '<')
        m_dialogs.AnswerOpenFile(PathOf(step));
    if (step.Sign == '>')
        m_dialogs.AnswerSaveFile(PathOf(step));
    if (LeavesPage(step) && front.objectName() != QStringLiteral("Preview"))
        TakePicture(front, QStringLiteral("%1_%2").arg(m_tour).arg(++m_pictureCount));
}

/// What may open a window, which is then in front until it closes.
void Guide::Click(QWidget& front, const Step& step)
{
    std::string name = step.Name;
    if (name == "@open") {
        const EffectCommand* effect = FindCommand(step.Value.toStdString());
        ASSERT_NE(effect, nullptr) << step.Value.toStdString();
        Find<QTabBar>(front, "TabStrip1")->setCurrentIndex(static_cast<int>(effect->Page));
        const bool hasPicture = RowOf(effect->Kind).MenuCommand == effect->Name;
        name = hasPicture ? "cmdSpecialFX(" + std::to_string(static_cast<int>(effect->Kind)) + ")"
                          : std::string(effect->Name);
    } else if (step.Sign == '=' || name.starts_with('@')) {
        return;
    }
    QObject* target = TargetOf(front, {name});
    if (auto* link = qobject_cast<LinkLabel*>(target))
        Press(*link, Qt::Key_Return);
    else if (auto* command = qobject_cast<QAction*>(target))
        command->trigger();
    else if (auto* button = qobject_cast<QAbstractButton*>(target))
        button->click();
    else
        ADD_FAILURE() << "nothing to click: " << name;
}

void Guide::Command(QWidget& front, const Step& step)
{
    const QString name = step.Value.section(u' ', 0, 0).replace(u'*', m_tour);
    const QString window = step.Value.section(u' ', 1);
    if (step.Name == "@wait") {
        m_pause = name.toInt();
    } else if (step.Name == "@picture") {
        QWidget* shown = window.isEmpty() ? &front : WindowNamed(front, window);
        ASSERT_NE(shown, nullptr) << window.toStdString();
        TakePicture(*shown, name);
    } else if (step.Name == "@close") {
        WindowNamed(front, name)->close();
    } else if (step.Name != "@open") {
        ADD_FAILURE() << "no such command: " << step.Name;
    }
}

void Guide::Fill(QWidget& front, const Step& step)
{
    auto& control = *qobject_cast<QWidget*>(TargetOf(front, step));
    const char* name = step.Name.c_str();
    if (qobject_cast<QListWidget*>(&control)) {
        ClickRow(front, name, RowWith(front, name, FromQt(step.Value)));
    } else if (auto* box = qobject_cast<QCheckBox*>(&control)) {
        if (box->isChecked() != (step.Value == QStringLiteral("on")))
            box->click();
    } else if (auto* swatch = qobject_cast<ColorSwatch*>(&control)) {
        m_dialogs.AnswerColor(PackedColorOf(step.Value));
        swatch->click();
    } else if (auto* line = qobject_cast<QLineEdit*>(&control)) {
        line->setFocus();
        line->selectAll();
        Type(front, name, FromQt(step.Value));
        EXPECT_EQ(line->text().toStdString(), step.Value.toStdString()) << name;
    } else {
        Pick(control, step);
    }
}

/// What is chosen rather than typed, and the boxes of several lines.
void Guide::Pick(QWidget& control, const Step& step)
{
    if (auto* combo = qobject_cast<QComboBox*>(&control)) {
        const int item = combo->findText(step.Value);
        EXPECT_TRUE(item >= 0 || combo->isEditable()) << step.Value.toStdString();
        combo->setCurrentIndex(item);
        if (item < 0)
            combo->setEditText(step.Value);
        emit combo->activated(item);
        emit combo->textActivated(step.Value);
    } else if (auto* box = qobject_cast<MultiLineBox*>(&control)) {
        box->SetWords(FromQt(step.Value));
    } else if (auto* slider = qobject_cast<QSlider*>(&control)) {
        slider->setValue(step.Value.toInt());
    } else if (auto* tabs = qobject_cast<QTabBar*>(&control)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            if (tabs->tabText(tab) == step.Value)
                tabs->setCurrentIndex(tab);
    } else {
        ADD_FAILURE() << "nothing to fill in: " << step.Name;
    }
}

void Guide::TakePicture(QWidget& window, QString name)
{
    if (!m_taken.insert(name).second)
        return;
    LetRun();
    SCOPED_TRACE("the window in " + name.toStdString());
    if (window.isWindow()) {
        ExpectAccessible(window);
        EXPECT_EQ(window.minimumSizeHint().boundedTo({640, 440}), window.minimumSizeHint());
    }
    EXPECT_TRUE(window.grab().save(m_folders.Pictures + u'/' + name + QStringLiteral(".png")));
}

Text Guide::PathOf(const Step& step) const
{
    const QString own = m_folders.Target + u'/' + step.Value;
    const bool isOwn = step.Sign == '>' || QFile::exists(own);
    return FromQt(isOwn ? own : m_folders.Samples + u'/' + step.Value);
}

} // namespace orvane::testing
