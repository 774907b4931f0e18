#include "effects/applet/more_image_effects_form.h"

#include "tests/support/form_test.h"

#include <QComboBox>

namespace orvane::testing {
namespace {

class MoreImageEffectsFormTest : public FormTest<MoreImageEffectsForm>
{
protected:
    bool Shows(const char* name) { return m_form.findChild<QWidget*>(name)->isVisible(); }
};

TEST_F(MoreImageEffectsFormTest, ThePauseThatComesWithTheEffectStaysUntilTheLoopsChange)
{
    Pick(m_form, "EffectPicker", "Shutter in");
    EXPECT_FALSE(Shows("PauseSeconds"));
    Find<QComboBox>(m_form, "LoopCount")->setEditText(QStringLiteral("3"));
    LetRun();
    ExpectAccessible(m_form); // the row has its room
    Pick(m_form, "EffectPicker", "Expand & Shrink");
    EXPECT_TRUE(Shows("PauseSeconds"));
    auto* loops = Find<QComboBox>(m_form, "LoopCount");
    EXPECT_EQ(WordsBeside(loops, 1)->text(), QStringLiteral("time"));
    loops->setEditText(QStringLiteral("0"));
    EXPECT_EQ(WordsBeside(loops, 1)->text(), QStringLiteral("times"));
    EXPECT_FALSE(Shows("PauseSeconds"));
    m_form.SetParameters(m_form.Parameters());
    EXPECT_FALSE(Shows("PauseSeconds"));
    Pick(m_form, "EffectPicker", "Expand & Shrink");
    EXPECT_TRUE(Shows("PauseSeconds"));
}

} // namespace
} // namespace orvane::testing
