#include "windows/controls.h"

#include "core/dialogs.h"
#include "core/help_viewer.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
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

void ShowAll(QLayoutItem& item, bool isShown)
{
    if (item.widget() != nullptr)
        item.widget()->setVisible(isShown);
    for (int i = 0; item.layout() != nullptr && i < item.layout()->count(); ++i)
        ShowAll(*item.layout()->itemAt(i), isShown);
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
            control->setFocus(Qt::OtherFocusReason);
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
        for (const auto role : {QFormLayout::FieldRole, QFormLayout::SpanningRole})
            if (QLayoutItem* item = rows->itemAt(row, role); item && Holds(item, control))
                return {rows, row};
    return {};
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
    const FormRow row = RowOf(control);
    for (const auto role : {QFormLayout::FieldRole, QFormLayout::SpanningRole}) {
        QLayoutItem* item = row.Rows == nullptr ? nullptr : row.Rows->itemAt(row.Row, role);
        QLayout* line = item == nullptr ? nullptr : item->layout();
        const int at = line == nullptr ? -1 : line->indexOf(control);
        if (QLayoutItem* beside = at < 0 ? nullptr : line->itemAt(at + place))
            return qobject_cast<QLabel*>(beside->widget());
    }
    return nullptr;
}

void ShowRow(QWidget* control, bool isShown)
{
    // Not by QFormLayout::setRowVisible(): it leaves a row without room that was hidden before the
    // window was first shown.
    const FormRow place = RowOf(control);
    for (const auto role :
         {QFormLayout::LabelRole, QFormLayout::FieldRole, QFormLayout::SpanningRole})
        if (QLayoutItem* item =
                place.Rows == nullptr ? nullptr : place.Rows->itemAt(place.Row, role))
            ShowAll(*item, isShown);
}

QSize FromTwips(int width, int height)
{
    constexpr int twipsPerPixel = 15;
    return {width / twipsPerPixel, height / twipsPerPixel};
}

} // namespace orvane
