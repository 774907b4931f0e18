#include "program/late_arrow_style.h"

#include <QIconEngine>
#include <QPainter>

namespace orvane {

namespace {

constexpr QStyle::StandardPixmap arrow = QStyle::SP_ToolBarHorizontalExtensionButton;

class LateArrow : public QIconEngine
{
public:
    explicit LateArrow(const QStyle& style) : m_style(style) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override
    {
        m_style.standardIcon(arrow).paint(painter, place, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return m_style.standardIcon(arrow).pixmap(size, mode, state);
    }

    QIconEngine* clone() const override { return new LateArrow(*this); }

private:
    const QStyle& m_style; ///< lives until all windows are gone
};

} // namespace

QIcon LateArrowStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                   const QWidget* widget) const
{
    return icon == arrow ? QIcon(new LateArrow(*baseStyle()))
                         : QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace orvane
