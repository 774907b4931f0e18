#include "windows/color_swatch.h"

#include "windows/controls.h"
#include "windows/qt_text.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace orvane {

namespace {

/// The true colour, which the texts made from it may miss.
QColor OnScreen(std::int32_t color)
{
    return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
}

/// The words with another end in place of the one that they have, which becomes the other one.
QString WithEnd(QString words, QString& end, const QString& next)
{
    if (words.endsWith(end))
        words.chop(end.size());
    end = next;
    return words + next;
}

} // namespace

ColorSwatch::ColorSwatch(TextView caption, ColorNotation notation, Dialogs& dialogs,
                         QWidget* parent)
    : QPushButton(ToQt(caption), parent),
      m_dialogs(dialogs),
      m_caption(ToQt(caption)),
      m_notation(notation)
{
    setFlat(true);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColorSwatch::Pick);
}

void ColorSwatch::SetValue(TextView value)
{
    m_value = value;
    const bool isDefault = m_notation == ColorNotation::RgbFunction && value.starts_with(u'#');
    if (isDefault || value.empty())
        m_unset = value;
    const auto whole = WholeColor(value);
    Show(isDefault ? std::nullopt : whole ? whole : PackedColor(value));
}

void ColorSwatch::Unset()
{
    m_value = m_unset;
    Show(std::nullopt);
    emit WasUnset();
}

void ColorSwatch::Show(std::optional<std::int32_t> color)
{
    m_color = color;
    setText(color ? QString() : m_caption);
    setAccessibleDescription(color ? QString() : m_caption);
    const QString value = color ? ToQt(ColorText(*color, m_notation)) : QString();
    setAccessibleName(WithEnd(accessibleName(), m_spoken, value.isEmpty() ? value : ", " + value));
    setToolTip(WithEnd(toolTip(), m_tip, value.isEmpty() ? value : " (" + value + ")"));
    update();
}

void ColorSwatch::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* unset = AddCommand(*menu, "mnuUnsetColor", u"&Take the color away");
    unset->setEnabled(m_color.has_value());
    connect(unset, &QAction::triggered, this, &ColorSwatch::Unset);
    menu->popup(event->globalPos());
}

QSize ColorSwatch::sizeHint() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = m_caption;
    option.features = QStyleOptionButton::None;
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, m_caption);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, words, this);
}

void ColorSwatch::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (key == Qt::Key_Delete || key == Qt::Key_Backspace)
        Unset();
    else if (!isEnter)
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    painter.fillRect(rect(), m_color ? QBrush(OnScreen(*m_color)) : palette().button());
    painter.drawItemText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, palette(), isEnabled(),
                         text(), QPalette::ButtonText);
    // A frame of the palette's own two colours, so that it shows on every colour inside it.
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
    painter.setPen(palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(2, 2, -3, -3));
}

void ColorSwatch::Pick()
{
    CColor color;
    color.SelectColor(m_dialogs);
    if (color.ColorDialogCancelled != 0)
        return;
    m_value = ColorText(color.RGBColor, m_notation);
    Show(color.RGBColor);
    emit Picked(color.RGBColor);
}

} // namespace orvane
