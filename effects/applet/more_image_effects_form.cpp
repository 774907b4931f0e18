#include "effects/applet/more_image_effects_form.h"

#include "services/file_requests.h"
#include "windows/picture.h"
#include "windows/qt_text.h"

#include <QComboBox>
#include <QPushButton>

namespace orvane {

MoreImageEffectsForm::MoreImageEffectsForm(Workbench& bench, QWidget* parent)
    : EffectForm("ImageEffects2", bench, parent)
{
    PageBuilder page =
        AddPage({u"More Image Special effects", u"Select an effect from the box below."});
    m_above = page.Fill();
    auto* picker = page.ComboBox("EffectPicker", u"Pick an effect:", moreImageEffectNames, false);
    AddProperties(page.Frame(u"Properties"));
    AddBehavior(page.Frame(u"Behavior"));
    page.Fill();
    connect(picker, &QComboBox::textActivated, this, &MoreImageEffectsForm::ChooseEffect);
    m_keys.Watch(*picker);
    connect(LoopCount, &QComboBox::currentTextChanged, this, [this] {
        const MoreImageEffects effects = Parameters();
        ShowRow(PauseSeconds, ShowsPauseForLoops(effects));
        WordsBeside(LoopCount, 1)->setText(ToQt(LoopUnit(effects.LoopCount)));
    });
    AddButtons(Buttons::OnePage);
}

void MoreImageEffectsForm::AddProperties(PageBuilder page)
{
    m_properties = page.Page();
    ImageFile =
        page.LockedBrowseRow("ImageFile", u"Select an Image:",
                             u"Image filename (Click the 'Browse' button to select an image)",
                             {.Button = "cmdBrowseForImage",
                              .Caption = u"Browse for image...",
                              .Request = ImageRequest(),
                              .Instead = [this](const Text& path) { TakeImage(path); }});
    page.Narrow(page.TextBox("ImageWidth", u"Image Width (pixels):", u"specified in pixels"));
    page.Narrow(page.TextBox("ImageHeight", u"Image Height (pixels):", u"specified in pixels"));
    page.ColorSwatch("lblBGColor", u"Background Color:", ColorNotation::Channels);
    page.BrowseRow("LinkUrl", u"Link to URL:", {},
                   {.Button = "cmdBrowseForURL",
                    .Caption = u"Browse for URL...",
                    .Request = WebPageRequest()});
}

void MoreImageEffectsForm::AddBehavior(PageBuilder page)
{
    m_behavior = page.Page();
    page.Slider("SpeedSlider", u"Speed:", u"Slow", u"Fast", {.Lowest = 1, .Highest = 100});
    LoopCount = page.Narrow(
        page.ComboBox("LoopCount", u"Loop/repeat the effect:", loopCounts, true, {}, u"times"));
    PauseSeconds = page.Narrow(page.ComboBox("PauseSeconds", u"Pause after each loop:",
                                             pauseLengths, true, {}, u"seconds"));
    StartEdge = page.ComboBox("StartEdge", u"Image starts from the:", startEdges, true, {},
                              u"of the special effect");
}

void MoreImageEffectsForm::ChooseEffect()
{
    MoreImageEffects effects = Parameters();
    effects.LoopCount = Text(loopCounts[0]);
    m_shownEffect.clear();
    SetParameters(effects);
    if (!m_keys.IsChoosing())
        ImageFile->setFocus(Qt::OtherFocusReason);
}

void MoreImageEffectsForm::TakeImage(const Text& path)
{
    MoreImageEffects effects = Parameters();
    if (const auto complaint = ChooseImage(effects, Measured(path)))
        return ShowComplaint(*complaint);
    SetParameters(effects);
}

void MoreImageEffectsForm::UpdateForm()
{
    const MoreImageEffects effects = Parameters();
    const bool isChosen = !effects.EffectPicker.empty();
    m_above->setVisible(!isChosen);
    m_properties->setVisible(isChosen);
    m_behavior->setVisible(isChosen);
    ShowRow(StartEdge, ShowsStartEdge(effects));
    // Once it is shown, the pause row comes and goes with the loop count alone.
    if (m_shownEffect != effects.EffectPicker)
        ShowRow(PauseSeconds, ShowsPauseOnChoice(effects) || ShowsPauseForLoops(effects));
    m_shownEffect = effects.EffectPicker;
}

} // namespace orvane
