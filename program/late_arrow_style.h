#pragma once

#include <QProxyStyle>

namespace orvane {

/// The style that it is made with, and owns. The arrow at the end of a menu bar without room for
/// all menus is read when it is drawn: that takes all libraries of picture formats, and every menu
/// bar would ask for it while the first window waits.
class LateArrowStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

} // namespace orvane
