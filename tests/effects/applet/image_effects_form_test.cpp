#include "effects/applet/image_effects_form.h"

#include "tests/support/form_test.h"
#include "tests/support/picture_files.h"
#include "tests/support/test_folder.h"

#include <QComboBox>
#include <QSlider>

namespace orvane::testing {
namespace {

class ImageEffectsFormTest : public FormTest<ImageEffectsForm>
{
protected:
    void Browse(unsigned width, unsigned height)
    {
        m_folder.Put("a.gif", GifBytes(width, height));
        m_desk.Dialogs.AnswerOpenFile(m_folder.TextAt("a.gif"));
        Click(m_form, "cmdBrowseForImage");
    }

    TestFolder m_folder;
};

TEST_F(ImageEffectsFormTest, EachEffectAnswersF1WithItsTopicAndANewChoiceEmptiesWhatWasTyped)
{
    const QSize size = m_form.size();
    const auto expectMode = [&](const char* effect, int topic) {
        Pick(m_form, "EffectPicker", effect);
        Click(m_form, "cmdClickHereForHelp");
        EXPECT_EQ(m_desk.Help.Shown.back(), topic);
        EXPECT_EQ(m_form.size(), size);
    };
    expectMode("Lake Reflection", 15);
    Find<QComboBox>(m_form, "TargetFrame")->setEditText(QStringLiteral("_top"));
    expectMode("Image Cube", 13);
    m_desk.Dialogs.AnswerColor(0x030201);
    Click(m_form, "ColorSwatch");
    Find<QSlider>(m_form, "RotationSlider")->setValue(60);
    EXPECT_EQ(WordsBeside(Find<QWidget>(m_form, "SizeSlider"), 1)->text(), QStringLiteral("Small"));
    expectMode("Image Ripple", 14);
    expectMode("Image Brighten", 40);
    Browse(7, 8);
    Click(m_form, "chkGradual");
    EXPECT_TRUE(Find<QWidget>(m_form, "SizeSlider")->isVisible());
    EXPECT_EQ(Find<QSlider>(m_form, "SizeSlider")->maximum(), 15);
    EXPECT_EQ(m_form.Parameters().SizeSlider, 5);
    expectMode("Image Brighten", 40);
    const ImageEffects emptied{.EffectPicker = u"Image Brighten",
                               .ColorSwatch =
                                   u"32,48,0", // five digits are shifted by their padding
                               .TargetFrame = u"_top",
                               .chkGradual = true,
                               .RotationSlider = 60,
                               .BackRed = 32,
                               .BackGreen = 48,
                               .BackBlue = 0};
    EXPECT_EQ(ToUtf8(WriteDraft(m_form.Parameters())), ToUtf8(WriteDraft(emptied)));
    EXPECT_NE(Find(Generate(emptied).HEADHTML, u"opacity += 125;\r\n"), 0u);
}

TEST_F(ImageEffectsFormTest, ArrowsKeepTheFocusInThePickerAndAClickOrAMissingImageMovesIt)
{
    m_form.activateWindow();
    auto* picker = Find<QComboBox>(m_form, "EffectPicker");
    picker->setFocus();
    const auto focused = [this] { return m_form.focusWidget()->objectName().toStdString(); };
    for (const char* effect : {"Image Cube", "Image Ripple"}) {
        Press(*picker, Qt::Key_Down);
        EXPECT_EQ(picker->currentText().toStdString(), effect);
        EXPECT_EQ(focused(), "EffectPicker");
    }
    Pick(m_form, "EffectPicker", "Image Cube");
    EXPECT_EQ(focused(), "ImageFile");
    m_desk.Dialogs.AnswerColor(0x030201);
    Click(m_form, "ColorSwatch");
    Press(*Find<QWidget>(m_form, "ColorSwatch"), Qt::Key_Delete);
    Type(m_form, "ImageWidth", u"256");
    Type(m_form, "ImageHeight", u"256");
    EXPECT_EQ(m_form.Parameters(), (ImageEffects{.EffectPicker = u"Image Cube",
                                                 .ImageWidth = u"256",
                                                 .ImageHeight = u"256",
                                                 .SizeSlider = 70}));
    Find<QWidget>(m_form, "cmdDone")->setFocus();
    Click(m_form, "cmdDone");
    EXPECT_EQ(Said(), Texts{u"Please select an image."});
    EXPECT_EQ(focused(), "ImageFile");
}

} // namespace
} // namespace orvane::testing
