#include "windows/color_swatch.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/page_builder.h"

#include <QDialog>

namespace orvane {
namespace {

using namespace orvane::testing;

class ColorSwatchTest : public ::testing::Test
{
protected:
    ColorSwatchTest()
    {
        QObject::connect(m_swatch, &ColorSwatch::Picked,
                         [this](std::int32_t color) { m_picked.push_back(color); });
        m_window.show();
    }

    /// The colour of its middle as it is painted.
    QColor Painted() { return m_swatch->grab().toImage().pixelColor(m_swatch->rect().center()); }

    FakeDesk m_desk;
    FakeDialogs& m_dialogs = m_desk.Dialogs;
    QDialog m_window;
    ColorSwatch* m_swatch =
        PageBuilder(&m_window, &m_desk.Bench).ColorSwatch("lblColor", u"Text &color:");
    std::vector<std::int32_t> m_picked;
};

TEST_F(ColorSwatchTest, ShowsItsCaptionAndIsNamedByItsLabel)
{
    EXPECT_EQ(m_swatch->text(), QStringLiteral("Click to Select Color"));
    EXPECT_EQ(m_swatch->accessibleName(), QStringLiteral("Text color"));
    EXPECT_EQ(m_swatch->toolTip(), QStringLiteral("Click here to select a color"));
    ExpectAccessible(m_window);
}

TEST_F(ColorSwatchTest, PaintsThePickedColorAsItIsWithoutItsCaption)
{
    const QSize before = m_swatch->sizeHint();
    m_dialogs.AnswerColor(188 | 10 << 8);
    Click(m_window, "lblColor");
    EXPECT_EQ(m_picked, std::vector<std::int32_t>{188 | 10 << 8});
    EXPECT_EQ(Painted(), QColor(188, 10, 0));
    EXPECT_EQ(m_swatch->text(), QString());
    EXPECT_EQ(m_swatch->sizeHint(), before);
}

TEST_F(ColorSwatchTest, OpensTheDialogOnEnterAndOnABlank)
{
    m_dialogs.AnswerColor(1);
    m_dialogs.AnswerColor(2);
    m_dialogs.AnswerColor(3);
    Press(*m_swatch, Qt::Key_Return);
    Press(*m_swatch, Qt::Key_Enter);
    Press(*m_swatch, Qt::Key_Space);
    EXPECT_EQ(m_picked, (std::vector<std::int32_t>{1, 2, 3}));
    EXPECT_TRUE(m_window.isVisible());
}

TEST_F(ColorSwatchTest, CancelKeepsTheColorBefore)
{
    m_swatch->SetValue(u"#00FF00");
    m_dialogs.AnswerColor(std::nullopt);
    Click(m_window, "lblColor");
    EXPECT_TRUE(m_picked.empty());
    EXPECT_EQ(Painted(), QColor(0, 255, 0));
}

} // namespace
} // namespace orvane
