#include "program/late_arrow_style.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(LateArrowStyleTest, DrawsWhatTheDesktopsStyleDraws)
{
    const LateArrowStyle style;
    for (const auto which :
         {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_DialogOkButton}) {
        const QIcon ours = style.standardIcon(which, nullptr, nullptr);
        const QIcon theirs = style.baseStyle()->standardIcon(which);
        EXPECT_EQ(ours.pixmap(16, 16).toImage(), theirs.pixmap(16, 16).toImage());
        QImage drawn(32, 32, QImage::Format_RGB32);
        drawn.fill(Qt::white);
        const QImage blank = drawn;
        QPainter painter(&drawn);
        ours.paint(&painter, drawn.rect());
        painter.end();
        EXPECT_NE(drawn, blank);
    }
}

} // namespace
} // namespace orvane::testing
