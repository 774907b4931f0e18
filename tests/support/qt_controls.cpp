#include "tests/support/qt_controls.h"

#include "windows/multi_line_box.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QTabBar>
#include <QTimer>

#include <map>
#include <set>
#include <vector>

namespace orvane::testing {

namespace {

void SendKey(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&control, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&control, &release);
}

/// Parts of the toolkit's own controls have names that begin so.
bool IsInner(const QWidget& control)
{
    return control.objectName().startsWith(QLatin1String("qt_"));
}

bool TakesFocus(const QWidget& control)
{
    return (control.focusPolicy() & Qt::TabFocus) != 0 && !IsInner(control) &&
           qobject_cast<const QComboBox*>(control.parentWidget()) == nullptr;
}

QString SpokenName(const QWidget& control)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control);
        button != nullptr && !button->text().isEmpty())
        return button->text();
    return control.accessibleName();
}

/// The caption that may mark an access key: of a button, or of a label that leads to a field.
QString CaptionOf(const QWidget& control)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return button->text();
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label != nullptr && label->buddy() != nullptr ? label->text() : QString();
}

QChar AccessKeyIn(QString caption)
{
    caption.remove(QStringLiteral("&&"));
    const auto mark = caption.indexOf(u'&');
    return mark < 0 || mark + 1 == caption.size() ? QChar() : caption[mark + 1].toLower();
}

/// Whether a reader comes to `next` behind `control`: further right, or further down.
bool IsBehind(const QRect& control, const QRect& next)
{
    const bool isInOneRow = next.top() < control.bottom() && control.top() < next.bottom();
    return isInOneRow ? next.left() >= control.left()
                      : next.top() >= control.top() || next.left() >= control.right();
}

/// Tab goes in reading order and reaches every control.
void ExpectReadingOrder(QWidget& window)
{
    std::vector<const QWidget*> stops;
    const QWidget* control = &window;
    do {
        // What is scrolled out of sight has no place.
        if (TakesFocus(*control) && control->isEnabled() &&
            control->visibleRegion().boundingRect() == control->rect())
            stops.push_back(control);
        control = control->nextInFocusChain();
    } while (control != &window);
    const auto place = [&](const QWidget& stop) {
        return QRect(stop.mapTo(&window, QPoint()), stop.size());
    };
    // Behind the last control comes the first one, wherever that lies.
    std::string wayBack;
    for (std::size_t i = 1; i < stops.size(); ++i) {
        if (IsBehind(place(*stops[i - 1]), place(*stops[i])))
            continue;
        const std::string names = stops[i - 1]->objectName().toStdString() + " to " +
                                  stops[i]->objectName().toStdString();
        EXPECT_TRUE(wayBack.empty()) << "Tab goes back from " << wayBack << ", and from " << names;
        wayBack = names;
    }
}

} // namespace

void Type(QWidget& window, const char* name, TextView text)
{
    auto* control = Find<QWidget>(window, name);
    if (control == nullptr)
        return;
    for (const QChar c : ToQt(text))
        SendKey(*control, Qt::Key_unknown, Qt::NoModifier, QString(c));
}

void Click(QWidget& window, const char* name)
{
    auto* button = Find<QAbstractButton>(window, name);
    if (button == nullptr)
        return;
    EXPECT_TRUE(button->isEnabled()) << name << " is disabled";
    EXPECT_TRUE(button->isVisibleTo(&window)) << name << " is hidden";
    button->click();
    LetRun();
}

void Pick(QWidget& window, const char* name, const char* words)
{
    auto* combo = Find<QComboBox>(window, name);
    combo->setCurrentText(QString::fromUtf8(words));
    emit combo->textActivated(combo->currentText());
}

void Press(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    SendKey(control, key, modifiers, {});
}

Text WordsOf(QWidget& window, const char* name)
{
    auto* control = Find<QWidget>(window, name);
    if (const auto* label = qobject_cast<QLabel*>(control))
        return FromQt(label->text());
    if (const auto* button = qobject_cast<QAbstractButton*>(control))
        return FromQt(button->text());
    if (const auto* line = qobject_cast<QLineEdit*>(control))
        return FromQt(line->text());
    if (const auto* box = qobject_cast<QComboBox*>(control))
        return FromQt(box->currentText());
    if (const auto* code = qobject_cast<MultiLineBox*>(control))
        return code->Words();
    return {};
}

std::vector<Text> RowsOf(QWidget& window, const char* name)
{
    std::vector<Text> rows;
    const auto* list = Find<QListWidget>(window, name);
    for (int row = 0; list != nullptr && row < list->count(); ++row)
        rows.push_back(FromQt(list->item(row)->text()));
    return rows;
}

int RowWith(QWidget& window, const char* name, TextView words)
{
    const std::vector<Text> rows = RowsOf(window, name);
    const auto found = std::find(rows.begin(), rows.end(), words);
    EXPECT_NE(found, rows.end()) << ToUtf8(words) << " is not in " << name;
    return static_cast<int>(found - rows.begin());
}

int SelectedRowOf(QWidget& window, const char* name)
{
    const auto* list = Find<QListWidget>(window, name);
    if (list == nullptr || list->selectedItems().isEmpty())
        return -1;
    return list->row(list->selectedItems().constFirst());
}

QAbstractButton* EffectButtonIn(QWidget& catalogue, EffectKind kind)
{
    const CataloguePage page = FindCommand(RowOf(kind).MenuCommand)->Page;
    Find<QTabBar>(catalogue, "TabStrip1")->setCurrentIndex(static_cast<int>(page));
    const std::string name = "cmdSpecialFX(" + std::to_string(static_cast<int>(kind)) + ")";
    return Find<QAbstractButton>(catalogue, name.c_str());
}

void LetRun()
{
    for (int round = 0; round < 3; ++round)
        QApplication::processEvents();
}

void Poll(const std::function<bool(QWidget* front, bool mayWait)>& action)
{
    constexpr int rounds = 2000;
    auto* timer = new QTimer(QApplication::instance());
    QObject::connect(timer, &QTimer::timeout, timer, [timer, action, round = 0]() mutable {
        // Stopped while the action runs: it may open windows with event loops of their own.
        timer->stop();
        if (action(QApplication::activeModalWidget(), ++round < rounds))
            timer->deleteLater();
        else
            timer->start(1);
    });
    timer->start(1);
}

void ExpectAccessible(QWidget& window)
{
    std::set<QString> names;
    std::map<QChar, std::string> keys;
    if (const auto* menus = window.findChild<QMenuBar*>())
        for (const QAction* menu : menus->actions())
            keys.emplace(AccessKeyIn(menu->text()), menu->text().toStdString());
    for (const QWidget* control : window.findChildren<QWidget*>()) {
        const QString name = control->objectName();
        if (!control->isVisibleTo(&window) || IsInner(*control) ||
            control->window() != window.window())
            continue;
        EXPECT_TRUE(name.isEmpty() || names.insert(name).second)
            << "twice on a page: " << name.toStdString();
        const QString caption = CaptionOf(*control);
        if (const QChar key = AccessKeyIn(caption); !key.isNull()) {
            const auto [other, isFirst] = keys.emplace(key, caption.toStdString());
            EXPECT_TRUE(isFirst) << "one access key: " << other->second << ", "
                                 << caption.toStdString();
        }
        if (TakesFocus(*control)) {
            EXPECT_FALSE(name.isEmpty())
                << "no object name: " << control->metaObject()->className();
            EXPECT_FALSE(SpokenName(*control).isEmpty()) << "no name: " << name.toStdString();
        }
        if (const auto* label = qobject_cast<const QLabel*>(control)) {
            const int needed = label->wordWrap() ? label->heightForWidth(label->width())
                                                 : label->sizeHint().height();
            EXPECT_GE(label->height(), needed) << "cut off: " << label->text().toStdString();
        }
    }
    ExpectReadingOrder(window);
}

} // namespace orvane::testing
