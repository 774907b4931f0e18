#include "effects/applet/more_image_effects_form.h"

#include "services/file_requests.h"
#include "windows/picture.h"

#include <QComboBox>
#include <QPushButton>

namespace orvane {

MoreImageEffectsForm::MoreImageEffectsForm(Workbench& bench, QWidget* parent)
    : EffectForm("ImageEffects2", bench, parent)
{
    PageBuilder page =
        AddPage({u"More Image Special effects", u"Select an effect from the box below."});
    page.Fill()->setObjectName(QStringLiteral("spaceAbove"));
    auto* picker = page.ComboBox("EffectPicker", u"Pick an effect:", moreImageEffectNames, false);
    AddProperties(page.Frame(u"Properties", "frameProperties"));
    AddBehavior(page.Frame(u"Behavior", "frameBehavior"));
    page.Fill();
    connect(picker, &QComboBox::textActivated, this, &MoreImageEffectsForm::ChooseEffect);
    m_keys.Watch(*picker);
    AddButtons(Buttons::OnePage);
}

void MoreImageEffectsForm::AddProperties(PageBuilder page)
{
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
    page.Slider("SpeedSlider", u"Speed:", u"Slow", u"Fast", {.Lowest = 1, .Highest = 100});
    page.Narrow(
        page.ComboBox("LoopCount", u"Loop/repeat the effect:", loopCounts, true, {}, u"times"));
    PauseSeconds = page.Narrow(page.ComboBox("PauseSeconds", u"Pause after each loop:",
                                             pauseLengths, true, {}, u"seconds"));
    page.ComboBox("StartEdge", u"Image starts from the:", startEdges, true, {},
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
    if (m_shownEffect != effects.EffectPicker) {
        m_pausesFor = effects.LoopCount;
    } else if (m_pausesFor && *m_pausesFor != effects.LoopCount) {
        m_pausesFor.reset();
        ShowLook(*this, LookOf(effects));
    }
    m_shownEffect = effects.EffectPicker;
    if (m_pausesFor && PausesOnChoice(effects))
        ShowRow(PauseSeconds, true);
}

} // namespace orvane
