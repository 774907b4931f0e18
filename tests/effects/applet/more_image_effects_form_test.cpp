#include "effects/applet/more_image_effects_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

#include <QComboBox>

namespace orvane {
namespace {

using namespace orvane::testing;

class MoreImageEffectsFormTest : public ::testing::Test
{
protected:
    MoreImageEffectsFormTest() { m_form.show(); }

    void Pick(const char* effect)
    {
        auto* picker = Find<QComboBox>(m_form, "EffectPicker");
        picker->setCurrentText(QString::fromUtf8(effect));
        emit picker->textActivated(picker->currentText());
    }

    bool Shows(const char* name) { return m_form.findChild<QWidget*>(name)->isVisible(); }

    FakeDesk m_desk;
    MoreImageEffectsForm m_form{m_desk.Bench};
};

TEST_F(MoreImageEffectsFormTest, PauseAndEdgeComeAndGo)
{
    Pick("Shutter in");
    EXPECT_FALSE(Shows("StartEdge") || Shows("PauseSeconds"));
    Find<QComboBox>(m_form, "LoopCount")->setEditText(QStringLiteral("3"));
    LetRun();
    ExpectAccessible(m_form); // the row has its room
    Pick("Expand & Shrink");
    EXPECT_TRUE(Shows("StartEdge") && Shows("PauseSeconds"));
    auto* loops = Find<QComboBox>(m_form, "LoopCount");
    EXPECT_EQ(WordsBeside(loops, 1)->text(), QStringLiteral("time"));
    for (const char* count : {"2", "1.5", "Infinite"}) {
        loops->setEditText(QString::fromUtf8(count));
        EXPECT_TRUE(Shows("PauseSeconds"));
        EXPECT_EQ(WordsBeside(loops, 1)->text(), QStringLiteral("times"));
        loops->setEditText(QStringLiteral("1"));
        EXPECT_FALSE(Shows("PauseSeconds"));
    }
    m_form.SetParameters(m_form.Parameters());
    EXPECT_FALSE(Shows("PauseSeconds"));
    Pick("Expand & Shrink");
    EXPECT_TRUE(Shows("PauseSeconds"));
    Pick("Slide-in & Slide-out");
    loops->setEditText(QStringLiteral("2"));
    loops->setEditText(QStringLiteral("1"));
    EXPECT_TRUE(Shows("PauseSeconds"));
}

} // namespace
} // namespace orvane
