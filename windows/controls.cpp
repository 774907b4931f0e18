#include "windows/controls.h"

#include "core/dialogs.h"
#include "core/help_viewer.h"
#include "windows/number_box.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>

#include <algorithm>

namespace orvane {

namespace {

using ItemRole = QFormLayout::ItemRole;

void CollectFrom(QLayout& layout, std::vector<QWidget*>& controls);

void Collect(QWidget* control, std::vector<QWidget*>& controls)
{
    if (control->focusPolicy() & Qt::TabFocus)
        controls.push_back(control);
    if (auto* stack = qobject_cast<QStackedWidget*>(control)) {
        for (int i = 0; i < stack->count(); ++i)
            Collect(stack->widget(i), controls);
    } else if (auto* splitter = qobject_cast<QSplitter*>(control)) {
        for (int i = 0; i < splitter->count(); ++i)
            Collect(splitter->widget(i), controls);
    } else if (auto* area = qobject_cast<QScrollArea*>(control)) {
        Collect(area->widget(), controls);
    } else if (control->layout() != nullptr) {
        CollectFrom(*control->layout(), controls);
    }
}

void CollectFrom(QLayout& layout, std::vector<QWidget*>& controls)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem* item = layout.itemAt(i);
        if (item->widget() != nullptr)
            Collect(item->widget(), controls);
        else if (item->layout() != nullptr)
            CollectFrom(*item->layout(), controls);
    }
}

bool Holds(QLayoutItem* item, const QWidget* control)
{
    if (item->widget() == control)
        return true;
    QLayout* layout = item->layout();
    for (int i = 0; layout != nullptr && i < layout->count(); ++i)
        if (Holds(layout->itemAt(i), control))
            return true;
    return false;
}

/// The layout in whose midst the control stands, among one and those in it; null when there is
/// none.
QLayout* LineWith(QWidget* control, QLayout* layout)
{
    if (layout == nullptr || layout->indexOf(control) >= 0)
        return layout;
    for (int i = 0; i < layout->count(); ++i)
        if (QLayout* line = LineWith(control, layout->itemAt(i)->layout()))
            return line;
    return nullptr;
}

/// A form layout keeps the place of a hidden row's items, and takes the room of the row that has
/// that place now when one with wrapped words comes. Items that were put in anew have no place.
void ForgetPlace(QFormLayout& rows, int row, ItemRole role)
{
    QLayoutItem* item = rows.itemAt(row, role);
    if (item == nullptr)
        return;
    rows.removeItem(item);
    if (item->layout() != nullptr)
        rows.setLayout(row, role, item->layout());
    else
        rows.setItem(row, role, item);
}

} // namespace

QString ToQt(ControlName name)
{
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

QString MemberName(ControlName group, int index)
{
    return QStringLiteral("%1(%2)").arg(ToQt(group)).arg(index);
}

QString SpokenName(TextView label)
{
    QString spoken = ToQt(label).remove(u'&');
    if (spoken.endsWith(u':'))
        spoken.chop(1);
    return spoken;
}

QPushButton* MakeButton(ControlName name, TextView caption, TextView tip)
{
    auto* button = new QPushButton(ToQt(caption));
    button->setObjectName(ToQt(name));
    button->setToolTip(ToQt(tip));
    button->setAutoDefault(true);
    return button;
}

QMenu* AddMenu(QMenuBar& bar, ControlName name, TextView caption)
{
    QMenu* menu = bar.addMenu(ToQt(caption));
    menu->setObjectName(ToQt(name));
    return menu;
}

QMenu* AddMenu(QMenu& menu, ControlName name, TextView caption)
{
    QMenu* inner = menu.addMenu(ToQt(caption));
    inner->setObjectName(ToQt(name));
    return inner;
}

QAction* AddCommand(QMenu& menu, ControlName name, TextView caption)
{
    QAction* command = menu.addAction(ToQt(caption));
    command->setObjectName(ToQt(name));
    return command;
}

void OpenHelpOnF1(QWidget* window, HelpViewer& help, int topic)
{
    auto* shortcut = new QShortcut(QKeySequence(Qt::Key_F1), window);
    QObject::connect(shortcut, &QShortcut::activated, window,
                     [&help, topic] { help.ShowTopic(topic); });
}

void ShowComplaint(QWidget& window, Dialogs& dialogs, const Complaint& complaint)
{
    dialogs.Say(complaint.Words, complaint.Look);
    if (complaint.Control.empty())
        return;
    for (auto* control : window.findChildren<QWidget*>(ToQt(complaint.Control)))
        if (control->isVisibleTo(&window))
            LeadTo(*control);
}

void LeadTo(QWidget& control)
{
    control.setFocus(Qt::OtherFocusReason);
    if (auto* number = qobject_cast<NumberBox*>(&control))
        number->selectAll();
    else if (auto* choice = qobject_cast<QComboBox*>(&control); choice && choice->isEditable())
        choice->lineEdit()->selectAll();
}

void LeaveAltToAccessKeys(QWidget& field)
{
    /// Without it a letter that is no access key at present would be typed.
    class AltFilter : public QObject
    {
    public:
        using QObject::QObject;
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() != QEvent::KeyPress)
                return QObject::eventFilter(watched, event);
            const auto& key = *static_cast<QKeyEvent*>(event);
            const bool types = !key.text().isEmpty() && key.text().at(0).isPrint();
            if (!types || (key.modifiers() & ~Qt::ShiftModifier) != Qt::AltModifier)
                return false;
            event->ignore();
            return true;
        }
    };
    field.installEventFilter(new AltFilter(&field));
}

void SetReadingOrder(QWidget& window)
{
    std::vector<QWidget*> controls;
    Collect(&window, controls);
    for (std::size_t i = 1; i < controls.size(); ++i)
        QWidget::setTabOrder(controls[i - 1], controls[i]);
}

QWidget* FirstControl(QWidget& page)
{
    std::vector<QWidget*> controls;
    Collect(&page, controls);
    const auto stops = [&](const QWidget* control) {
        return control->isEnabled() && control->isVisibleTo(&page);
    };
    const auto first = std::ranges::find_if(controls, stops);
    return first == controls.end() ? nullptr : *first;
}

FormRow RowOf(const QWidget* control)
{
    auto* rows = qobject_cast<QFormLayout*>(control->parentWidget()->layout());
    for (int row = 0; rows != nullptr && row < rows->rowCount(); ++row)
        for (const int role : {QFormLayout::SpanningRole, QFormLayout::FieldRole})
            if (QLayoutItem* item = rows->itemAt(row, ItemRole(role)); item && Holds(item, control))
                return {rows, row, role};
    return {};
}

QLayoutItem* CellOf(const QWidget* control)
{
    const FormRow place = RowOf(control);
    return place.Rows == nullptr ? nullptr : place.Rows->itemAt(place.Row, ItemRole(place.Role));
}

QLabel* LabelOf(QWidget* control)
{
    const FormRow place = RowOf(control);
    QLayoutItem* item =
        place.Rows == nullptr ? nullptr : place.Rows->itemAt(place.Row, QFormLayout::LabelRole);
    return item == nullptr ? nullptr : qobject_cast<QLabel*>(item->widget());
}

QLabel* WordsBeside(QWidget* control, int place)
{
    QLayoutItem* cell = CellOf(control);
    QLayout* line = cell == nullptr ? nullptr : LineWith(control, cell->layout());
    const int at = line == nullptr ? 0 : line->indexOf(control) + place;
    QLayoutItem* beside = line == nullptr ? nullptr : line->itemAt(at);
    return beside == nullptr ? nullptr : qobject_cast<QLabel*>(beside->widget());
}

void ShowRow(QWidget* control, bool isShown)
{
    const FormRow place = RowOf(control);
    if (place.Rows == nullptr || place.Rows->isRowVisible(place.Row) == isShown)
        return;
    if (!isShown) {
        ForgetPlace(*place.Rows, place.Row, QFormLayout::LabelRole);
        ForgetPlace(*place.Rows, place.Row, ItemRole(place.Role));
    }
    place.Rows->setRowVisible(place.Row, isShown);
}

QSize FromTwips(int width, int height)
{
    constexpr int twipsPerPixel = 15;
    return {width / twipsPerPixel, height / twipsPerPixel};
}

} // namespace orvane
