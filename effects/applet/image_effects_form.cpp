#include "effects/applet/image_effects_form.h"

#include "core/pick_lists.h"
#include "services/file_requests.h"
#include "windows/color_swatch.h"
#include "windows/picture.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSlider>

namespace orvane {

namespace {

constexpr SliderRange widestSize{.Lowest = 1, .Highest = 255, .Tick = 16};

} // namespace

ImageEffectsForm::ImageEffectsForm(Workbench& bench, QWidget* parent)
    : EffectForm("ImageEffects", bench, parent)
{
    PageBuilder page =
        AddPage({u"Image special effects", u"Select an image special effect from the list below."});
    auto* picker = page.ComboBox("EffectPicker", u"Pick an effect:", imageEffectNames, false);
    PageBuilder properties = page.Frame(u"Properties", "frameProperties");
    AddFields(properties);
    AddModeFields(properties);
    page.Fill();
    connect(picker, &QComboBox::currentTextChanged, this, &ImageEffectsForm::WidenSizeSlider);
    connect(picker, &QComboBox::textActivated, this, [this] {
        ImageEffects effects = Parameters();
        ChooseEffect(effects);
        Show(effects);
        if (!m_keys.IsChoosing())
            ImageFile->setFocus(Qt::OtherFocusReason);
    });
    m_keys.Watch(*picker);
    AddButtons(Buttons::OnePage);
}

void ImageEffectsForm::Open(const Opening& opening)
{
    EffectForm::Open(opening);
    if (ModeOf(Parameters()) != nullptr)
        ImageFile->setFocus(Qt::OtherFocusReason);
}

void ImageEffectsForm::AddFields(PageBuilder& page)
{
    ImageFile =
        page.LockedBrowseRow("ImageFile", u"Image filename:",
                             u"Image filename  (Click the 'Browse' button to select an image)",
                             {.Button = "cmdBrowseForImage",
                              .Caption = u"Browse for image...",
                              .Request = ImageRequest(),
                              .Instead = [this](const Text& path) { TakeImage(path); }});
    page.Narrow(page.TextBox("ImageWidth", u"Applet Width:",
                             u"This is the width of the special effect, specified in pixels",
                             u"pixels"));
    page.Narrow(page.TextBox("ImageHeight", u"Applet Height:",
                             u"This is the height of the special effect, specified in pixels",
                             u"pixels"));
}

/// The rows that come and go with the effect stand below those that stay.
void ImageEffectsForm::AddModeFields(PageBuilder& page)
{
    page.BrowseRow("LinkOrColor", u"URL to link to:", {},
                   {.Button = "cmdBrowseForURL",
                    .Caption = u"Browse for URL...",
                    .Request = WebPageRequest()});
    auto* swatch = page.ColorSwatch("ColorSwatch", u"Background Color:", ColorNotation::Channels);
    page.ComboBox("TargetFrame", u"Target Frame:", LinkTargets, true);
    page.Narrow(page.TextBox("FrameCount", u"Number of frames:", {},
                             u"Large number (25) makes slow animation"));
    auto* gradual = page.CheckBox("chkGradual", u"Gradual brighten",
                                  u"This causes the brightening to occur gradually");
    SizeSlider = page.Slider("SizeSlider", u"Speed:", u"Slow", u"Fast", widestSize);
    page.Slider("RotationSlider", u"Rotation speed:", u"Slow", u"Fast",
                {.Lowest = 1, .Highest = 75, .Tick = 5});
    for (const ControlName hidden : {"BackRed", "BackGreen", "BackBlue"})
        page.HiddenText(hidden);
    const auto takeColor = [this] {
        ImageEffects effects = Parameters();
        ChooseColor(effects, effects.ColorSwatch);
        Show(effects);
    };
    connect(swatch, &orvane::ColorSwatch::Picked, this, takeColor);
    connect(swatch, &orvane::ColorSwatch::WasUnset, this, takeColor);
    connect(gradual, &QCheckBox::clicked, this, [this] {
        ImageEffects effects = Parameters();
        ChooseGradual(effects);
        Show(effects);
    });
}

void ImageEffectsForm::TakeImage(const Text& path)
{
    ImageEffects effects = Parameters();
    if (const auto complaint = ChooseImage(effects, Measured(path)))
        return ShowComplaint(*complaint);
    Show(effects);
}

/// The range of the effect that was shown must not cut the value of the one that comes.
void ImageEffectsForm::WidenSizeSlider()
{
    SizeSlider->setRange(widestSize.Lowest, widestSize.Highest);
}

void ImageEffectsForm::Show(const ImageEffects& effects)
{
    WidenSizeSlider();
    SetParameters(effects);
}

void ImageEffectsForm::UpdateForm()
{
    const ImageEffects effects = Parameters();
    const ImageEffectsMode* mode = ModeOf(effects);
    if (mode == nullptr)
        return;
    SetHelpTopic(mode->HelpTopic);
    SetHeading(WordsOf(0).Heading, mode->SubHeading);
    if (const auto slider = SizeSliderOf(effects)) {
        SizeSlider->setRange(slider->Lowest, slider->Highest);
        SizeSlider->setTickInterval(slider->Tick);
        SizeSlider->setSingleStep(slider->SmallStep);
    }
}

} // namespace orvane
