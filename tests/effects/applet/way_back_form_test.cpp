#include "effects/applet/advanced_animator_form.h"
#include "effects/applet/image_effects_form.h"
#include "effects/applet/typewriter_text_form.h"
#include "reedit/applet_tag.h"
#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"
#include "tests/support/qt_controls.h"

#include <QPushButton>

namespace orvane::testing {
namespace {

/// Pastes an effect's tag, follows the line that takes the quotes off, and presses Done.
template <class Form, class Effect>
void ExpectSameTagAfterDone(const Effect& effect)
{
    FakeDesk desk;
    const Text tag = Generate(effect).BODYHTML;
    Form form(desk.Bench);
    form.Open(TagOf(tag));
    form.show();
    EXPECT_FALSE(form.isWindowModified());
    EXPECT_NE(Generate(form.Parameters()).BODYHTML, tag);
    auto* line = Find<QWidget>(form, "lblTakeQuotesOff");
    ASSERT_TRUE(line != nullptr && line->isVisible());
    form.SetParameters({}); // whatever was done in between
    Press(*line, Qt::Key_Return);
    EXPECT_FALSE(line->isVisible());
    auto* done = form.template findChild<QPushButton*>(QStringLiteral("cmdDone"));
    for (int page = 0; page < (done != nullptr ? 1 : 3); ++page)
        Click(form, done != nullptr ? "cmdDone" : "cmdNext");
    const auto payload = form.TakePayload();
    ASSERT_TRUE(payload);
    ExpectSameText(tag, payload->BODYHTML);
}

TEST(WayBackFormTest, AnAnimationComesBackWithAllItsImages)
{
    AdvancedAnimator animator{.Rows = {{.FileName = u"a.gif",
                                        .Pause = u" 250 ",
                                        .Transition = u"slidein(3)",
                                        .URL = u"PAUSE.0 VALUE=7",
                                        .Sound = u"ding.au"}},
                              .AnimationWidth = u"320",
                              .AnimationHeight = u"200",
                              .LoopCount = u"10 times",
                              .BackgroundColor = u"255,128,0"};
    animator.Rows.resize(40, {.FileName = u"c.gif"});
    ExpectSameTagAfterDone<AdvancedAnimatorForm>(animator);
}

TEST(WayBackFormTest, ATypewriterComesBackWithItsTextOrItsFile)
{
    TypewriterText typewriter{.TypedText = u"a > b\r\n\r\nit's SPEED VALUE=7 «Width» ",
                              .Bold = true,
                              .Italic = true,
                              .TextColor = Text(BasicColors[1]),
                              .AppletWidth = u"300",
                              .AppletHeight = u"80 px",
                              .Speed = 400,
                              .Cycles = u"10 times",
                              .BackColor = u"10,20,30",
                              .BackImage = u"paper.gif",
                              .LinkURL = u"x.html"};
    ExpectSameTagAfterDone<TypewriterTextForm>(typewriter);
    typewriter.Bold = false;
    typewriter.ReadFromFile = true;
    typewriter.TextFile = u"my words.txt";
    ExpectSameTagAfterDone<TypewriterTextForm>(typewriter);
}

TEST(WayBackFormTest, AnImageEffectComesBackWithItsColorAndItsHeight)
{
    ImageEffects effects{.EffectPicker = u"Image Cube",
                         .ImageFile = u"a.gif",
                         .ImageWidth = u"300",
                         .ImageHeight = u"20.5",
                         .TargetFrame = u"_top",
                         .SizeSlider = 200,
                         .RotationSlider = 33};
    ExpectSameTagAfterDone<ImageEffectsForm>(effects); // without a color
    ChooseColor(effects, u"0,20,255");
    ExpectSameTagAfterDone<ImageEffectsForm>(effects);
    effects.EffectPicker = u"Lake Reflection";
    ExpectSameTagAfterDone<ImageEffectsForm>(effects);
    effects.EffectPicker = u"Image Ripple";
    effects.SizeSlider = 50;
    ExpectSameTagAfterDone<ImageEffectsForm>(effects);
}

} // namespace
} // namespace orvane::testing
