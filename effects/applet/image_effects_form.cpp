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
    PageBuilder properties = page.Frame(u"Properties");
    m_properties = properties.Page();
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
    ImageWidth = page.Narrow(
        page.TextBox("ImageWidth", u"Applet Width:",
                     u"This is the width of the special effect, specified in pixels", u"pixels"));
    ImageHeight = page.Narrow(
        page.TextBox("ImageHeight", u"Applet Height:",
                     u"This is the height of the special effect, specified in pixels", u"pixels"));
}

/// The rows that come and go with the effect stand below those that stay.
void ImageEffectsForm::AddModeFields(PageBuilder& page)
{
    LinkOrColor = page.BrowseRow("LinkOrColor", u"URL to link to:", {},
                                 {.Button = "cmdBrowseForURL",
                                  .Caption = u"Browse for URL...",
                                  .Request = WebPageRequest()});
    ColorSwatch = page.ColorSwatch("ColorSwatch", u"Background Color:", ColorNotation::Channels);
    TargetFrame = page.ComboBox("TargetFrame", u"Target Frame:", LinkTargets, true);
    FrameCount = page.Narrow(page.TextBox("FrameCount", u"Number of frames:", {},
                                          u"Large number (25) makes slow animation"));
    chkGradual = page.CheckBox("chkGradual", u"Gradual brighten",
                               u"This causes the brightening to occur gradually");
    SizeSlider = page.Slider("SizeSlider", u"Speed:", u"Slow", u"Fast", widestSize);
    RotationSlider = page.Slider("RotationSlider", u"Rotation speed:", u"Slow", u"Fast",
                                 {.Lowest = 1, .Highest = 75, .Tick = 5});
    for (const ControlName hidden : {"BackRed", "BackGreen", "BackBlue"})
        page.HiddenText(hidden);
    const auto takeColor = [this] {
        ImageEffects effects = Parameters();
        ChooseColor(effects, effects.ColorSwatch);
        Show(effects);
    };
    connect(ColorSwatch, &orvane::ColorSwatch::Picked, this, takeColor);
    connect(ColorSwatch, &orvane::ColorSwatch::WasUnset, this, takeColor);
    connect(chkGradual, &QCheckBox::clicked, this, [this] {
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
    m_properties->setVisible(mode != nullptr);
    if (mode == nullptr)
        return;
    ShowMode(*mode);
    ShowSizeSlider(SizeSliderOf(effects));
}

void ImageEffectsForm::ShowMode(const ImageEffectsMode& mode)
{
    SetHelpTopic(mode.HelpTopic);
    SetHeading(WordsOf(0).Heading, mode.SubHeading);
    LabelOf(ImageWidth)->setText(ToQt(mode.WidthLabel));
    LabelOf(ImageHeight)->setText(ToQt(mode.HeightLabel));
    ShowRow(LinkOrColor, mode.Second == SecondRow::Link);
    ShowRow(ColorSwatch, mode.Second == SecondRow::Color);
    ShowRow(TargetFrame, mode.Third == ThirdRow::TargetFrame);
    ShowRow(FrameCount, mode.Third == ThirdRow::FrameCount);
    ShowRow(chkGradual, mode.CanBrightenGradually);
    ShowRow(RotationSlider, mode.HasRotation);
}

void ImageEffectsForm::ShowSizeSlider(const std::optional<EffectSlider>& slider)
{
    ShowRow(SizeSlider, slider.has_value());
    if (!slider)
        return;
    SizeSlider->setRange(slider->Lowest, slider->Highest);
    SizeSlider->setTickInterval(slider->Tick);
    SizeSlider->setSingleStep(slider->SmallStep);
    SizeSlider->setToolTip(ToQt(slider->Tip));
    SizeSlider->setAccessibleName(SpokenName(slider->Caption));
    LabelOf(SizeSlider)->setText(ToQt(slider->Caption));
    WordsBeside(SizeSlider, -1)->setText(ToQt(slider->LeftEnd));
    WordsBeside(SizeSlider, 1)->setText(ToQt(slider->RightEnd));
}

} // namespace orvane
