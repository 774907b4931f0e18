#include "windows/color_swatch.h"

#include "windows/qt_text.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace orvane {

namespace {

/// The true colour, which the texts made from it may miss.
QColor OnScreen(std::int32_t color)
{
    return QColor(color & 0xFF, color >> 8 & 0xFF, color >> 16 & 0xFF);
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
    Show(isDefault ? std::nullopt : PackedColor(value));
}

void ColorSwatch::Show(std::optional<std::int32_t> color)
{
    m_color = color;
    setText(color ? QString() : m_caption);
    setAccessibleDescription(color ? OnScreen(*color).name() : m_caption);
    update();
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
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter)
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
