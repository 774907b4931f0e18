#include "catalogue/effect_button.h"

#include "catalogue/effect_picture.h"
#include "windows/qt_text.h"

#include <QKeyEvent>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>

#include <cmath>
#include <numbers>

namespace orvane {

namespace {

constexpr int lettersPerLine = 21;

/// A title on two lines where it is long, so that the buttons stay narrow.
QString WrappedTitle(TextView title)
{
    QString wrapped = ToQt(title);
    if (wrapped.size() > 14) {
        const qsizetype middle = wrapped.size() / 2;
        const qsizetype before = wrapped.lastIndexOf(u' ', middle);
        const qsizetype behind = wrapped.indexOf(u' ', middle);
        const bool isBeforeNearer =
            behind < 0 || (before >= 0 && middle - before < behind - middle);
        if (const qsizetype place = isBeforeNearer ? before : behind; place >= 0)
            wrapped[place] = u'\n';
    }
    return wrapped;
}

QPainterPath Star(QPointF middle, double radius)
{
    QPainterPath star;
    for (int point = 0; point < 10; ++point) {
        const double angle = std::numbers::pi * (point / 5.0 - 0.5);
        const double reach = point % 2 == 0 ? radius : radius * 0.45;
        const QPointF tip = middle + reach * QPointF(std::cos(angle), std::sin(angle));
        point == 0 ? star.moveTo(tip) : star.lineTo(tip);
    }
    star.closeSubpath();
    return star;
}

} // namespace

EffectButton::EffectButton(const CatalogueRow& row, const QString& name) : m_row(row)
{
    setObjectName(name);
    setAccessibleName(ToQt(row.Title));
    setText(WrappedTitle(row.Title));
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setIconSize(pictureSize);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    Describe();
    connect(this, &QToolButton::clicked, this,
            [this] { emit EffectWanted(FindCommand(m_row.MenuCommand)->Kind); });
}

void EffectButton::SetFavorite(bool isFavorite)
{
    m_isFavorite = isFavorite;
    Describe();
    update();
}

void EffectButton::DrawPicture()
{
    if (m_still.isNull())
        m_still = StillPicture(m_row, palette(), devicePixelRatioF());
    setIcon(m_still);
}

void EffectButton::ShowFrame(const QImage& frame)
{
    setIcon(Edged(frame, palette()));
}

void EffectButton::ShowStill()
{
    setIcon(m_still);
}

QSize EffectButton::sizeHint() const
{
    // Every button is as large as one with two lines of words, so that all pages look alike. The
    // words themselves are not measured, which would hold up the first window.
    ensurePolished();
    const QFontMetrics letters = fontMetrics();
    const QSize content = pictureSize.grownBy({0, 0, 0, 2 * letters.lineSpacing()});
    QStyleOptionToolButton option;
    initStyleOption(&option);
    return style()
        ->sizeFromContents(QStyle::CT_ToolButton, &option, content, this)
        .expandedTo({lettersPerLine * letters.averageCharWidth(),
                     pictureSize.height() + 3 * letters.lineSpacing()});
}

void EffectButton::changeEvent(QEvent* event)
{
    QToolButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_still.isNull()) {
        m_still = {};
        DrawPicture();
    }
}

void EffectButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QToolButton::keyPressEvent(event);
}

void EffectButton::paintEvent(QPaintEvent*)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    if (!m_isFavorite)
        return;
    const double radius = fontMetrics().height() / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawPath(Star({width() - radius - 3, radius + 3}, radius));
}

void EffectButton::Describe()
{
    const QString star = m_isFavorite ? QStringLiteral("Favorite. ") : QString();
    setAccessibleDescription(star + ToQt(m_row.Description));
}

} // namespace orvane
