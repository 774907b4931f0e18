#include "windows/color_swatch.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/page_builder.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDialog>

namespace orvane::testing {
namespace {

class ColorSwatchTest : public ::testing::Test
{
protected:
    ColorSwatchTest()
    {
        QObject::connect(m_swatch, &ColorSwatch::Picked,
                         [this](std::int32_t color) { m_picked.push_back(color); });
        m_window.show();
    }

    FakeDesk m_desk;
    FakeDialogs& m_dialogs = m_desk.Dialogs;
    QDialog m_window;
    ColorSwatch* m_swatch =
        PageBuilder(&m_window, &m_desk.Bench).ColorSwatch("lblColor", u"Text &color:");
    std::vector<std::int32_t> m_picked;
};

TEST_F(ColorSwatchTest, PaintsThePickedColorInPlaceOfItsCaptionAndCancelKeepsIt)
{
    EXPECT_EQ(m_swatch->text(), QStringLiteral("Click to Select Color"));
    EXPECT_EQ(m_swatch->accessibleName(), QStringLiteral("Text color"));
    EXPECT_EQ(m_swatch->toolTip(), QStringLiteral("Click here to select a color"));
    ExpectAccessible(m_window);
    const QSize before = m_swatch->sizeHint();
    m_dialogs.AnswerColor(188 | 10 << 8);
    m_dialogs.AnswerColor(std::nullopt);
    for (int time = 0; time < 2; ++time) {
        Click(m_window, "lblColor");
        EXPECT_EQ(m_picked, std::vector<std::int32_t>{188 | 10 << 8});
        EXPECT_EQ(m_swatch->grab().toImage().pixelColor(m_swatch->rect().center()),
                  QColor(188, 10, 0));
    }
    EXPECT_EQ(m_swatch->text(), QString());
    EXPECT_EQ(m_swatch->sizeHint(), before);
}

TEST_F(ColorSwatchTest, SaysItsColorAndGoesBackToTheDefaultOnDelete)
{
    const auto words = [](const QWidget& swatch) {
        return (swatch.accessibleName() + ", " + swatch.toolTip()).toStdString();
    };
    auto* tooltip = PageBuilder(new QWidget(&m_window), &m_desk.Bench)
                        .ColorSwatch("lblBack", u"Back:", ColorNotation::RgbFunction);
    tooltip->SetValue(u"#FFFFFF");
    const std::pair<ColorSwatch*, std::string> rows[] = {{m_swatch, "#BC0A30"},
                                                         {tooltip, "rgb(188,10,48)"}};
    for (const auto& [swatch, value] : rows) {
        const std::string plain = words(*swatch);
        const Text unset = swatch->Value();
        int changes = 0;
        QObject receiver;
        QObject::connect(swatch, &ColorSwatch::WasUnset, &receiver, [&changes] { ++changes; });
        for (int time = 0; time < 2; ++time) {
            m_dialogs.AnswerColor(188 | 10 << 8 | 48 << 16);
            swatch->click();
        }
        const std::string name = swatch == m_swatch ? "Text color, " : "Back, ";
        EXPECT_EQ(words(*swatch), name + value + ", Click here to select a color (" + value + ")");
        Press(*swatch, Qt::Key_Delete);
        EXPECT_EQ(words(*swatch), plain);
        EXPECT_EQ(swatch->Value(), unset);
        EXPECT_EQ(swatch->Color(), std::nullopt);
        EXPECT_EQ(changes, 1);
    }
    m_swatch->SetValue(u"#102030");
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, m_swatch->mapToGlobal(QPoint()));
    QApplication::sendEvent(m_swatch, &menu);
    m_swatch->findChild<QAction*>("mnuUnsetColor")->trigger();
    EXPECT_EQ(m_swatch->Value(), u"");
}

TEST_F(ColorSwatchTest, OpensTheDialogOnEnterAndOnABlank)
{
    for (const auto& [key, color] :
         {std::pair(Qt::Key_Return, 1), {Qt::Key_Enter, 2}, {Qt::Key_Space, 3}}) {
        m_dialogs.AnswerColor(color);
        Press(*m_swatch, key);
    }
    EXPECT_EQ(m_picked, (std::vector<std::int32_t>{1, 2, 3}));
    EXPECT_TRUE(m_window.isVisible());
}

} // namespace
} // namespace orvane::testing
