#include "program/page_effects_road.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "delivery/required_files.h"
#include "effects/effect_windows.h"
#include "effects/fields_in_page.h"
#include "insertion/page_script.h"
#include "preview/live_preview_panel.h"
#include "program/choose_effect_form.h"
#include "program/recipe_menu.h"
#include "reedit/effects_on_page_form.h"
#include "reedit/remembered_fields.h"
#include "services/chosen_effects.h"
#include "services/recent_files.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr TextView partlyRead =
    u"Orvane does not know what this special effect was made with.  The "
    u"wizard shows what can be read from the page.";

constexpr TextView notRead = u"Orvane does not know what this special effect was made with, and "
                             u"cannot read it from the page.  The wizard opens with fresh fields.";

/// Takes the files off the list that lie beside the page already.
void LeaveOutFilesThere(RequiredFiles& required, const FileStore& files, TextView folder)
{
    for (std::size_t i = 0; i < required.RequiredFileNames.size(); ++i)
        if (Text& name = required.RequiredFileNames[i]; files.FileExists(Join({folder, name}))) {
            name.clear();
            required.RequiredFileSources[i].clear();
        }
}

} // namespace

PageEffectsRoad::PageEffectsRoad(Workbench& bench, QWidget* pane, QWidget* parent,
                                 std::function<void(QDialog&)> show)
    : m_bench(bench),
      m_pane(pane),
      m_parent(parent),
      m_show(std::move(show)),
      m_page(bench.Files, bench.Dialogs, BackupsPlaceIn(bench.StateFolder, bench.Today()))
{
}

void PageEffectsRoad::Show(TextView page)
{
    if (!page.empty())
        m_page.GoTo(page);
    const auto copyPageScript = [this](TextView) { CopyFiles({.WantsPageScript = true}); };
    EffectsOnPageForm form(m_bench, m_page, m_pane, copyPageScript, m_parent);
    while (true) {
        m_show(form);
        const auto wanted = form.TakeWanted();
        if (!wanted)
            return;
        if (wanted->Changed)
            Change(*wanted->Changed);
        else
            Add();
    }
}

void PageEffectsRoad::Change(const EffectInPage& effect)
{
    const std::string page = m_page.Bytes();
    const FieldsInPage fields = ReadFields(m_bench.Files, m_bench.StateFolder, page, effect);
    if (!fields.IsKnown)
        m_bench.Dialogs.Say(std::holds_alternative<FreshStart>(fields.Opens) ? notRead
                                                                             : partlyRead);
    SetModes(m_bench.Core, RowOf(fields.Kind).MenuCommand);
    const auto wizard = MakeWizard(fields.Kind, m_bench, m_parent);
    if (wizard == nullptr)
        return;
    wizard->Open(fields.Opens);
    LeadThrough(*wizard, {.Page = page, .Replaced = effect, .IsKnown = fields.IsKnown});
}

void PageEffectsRoad::Add()
{
    ChooseEffectForm choice(m_bench, m_parent);
    m_show(choice);
    const auto kind = choice.Chosen();
    if (!kind)
        return;
    SetModes(m_bench.Core, RowOf(*kind).MenuCommand);
    RememberEffect(m_bench.Settings, *kind);
    if (const auto wizard = MakeWizard(*kind, m_bench, m_parent))
        LeadThrough(*wizard, {.Page = m_page.Bytes()});
}

void PageEffectsRoad::LeadThrough(WizardForm& wizard, PutInJob job)
{
    AddRecipeMenu(wizard, m_bench);
    AddLivePreview(wizard, m_bench, m_pane);
    while (true) {
        m_show(wizard);
        const auto made = wizard.TakePayload();
        if (!made || PutIn(*made, wizard, job) != PutInEnd::BackToWizard)
            return;
    }
}

PutInEnd PageEffectsRoad::PutIn(TextView page, const EffectPayload& effect, WizardForm& wizard)
{
    m_page.GoTo(page);
    return PutIn(effect, wizard, {.Page = m_page.Bytes()});
}

PutInEnd PageEffectsRoad::PutIn(const EffectPayload& effect, WizardForm& wizard, PutInJob job)
{
    job.Payload = Finished(effect);
    const FinishedPayload payload = job.Payload;
    PutInForm form(m_bench, m_page, std::move(job), m_pane, m_parent);
    m_show(form);
    if (form.End() == PutInEnd::Written) {
        RememberFields(m_bench.Files, m_bench.StateFolder, payload, wizard.Fields());
        wizard.WasDelivered();
        PutRecentFile(m_bench.Settings, recentPages, m_page.Path());
        CopyFiles(payload);
    }
    return form.End();
}

FinishedPayload PageEffectsRoad::Finished(const EffectPayload& effect) const
{
    FinishedPayload payload = Finish(effect);
    const bool isWanted =
        m_bench.Settings.Get(settingKeys::runsToday) == u"1" || HasPageScript(m_page.Bytes());
    payload.WantsPageScript = isWanted && !RunsByItself(effect);
    return payload;
}

/// Copies what the effect needs and does not lie beside the page yet.
void PageEffectsRoad::CopyFiles(FinishedPayload payload)
{
    const TextView folder = FolderOf(m_page.Path());
    RequiredFiles& required = payload.Effect.Required;
    LeaveOutFilesThere(required, m_bench.Files, folder);
    DeliveryReport report;
    const CopyJob job{.Payload = payload,
                      .ProgramFolder = m_bench.Core.ProgramFolder,
                      .Files = m_bench.Files,
                      .Dialogs = m_bench.Dialogs,
                      .Report = report,
                      .HasFileList = false};
    const bool copiesMore =
        std::ranges::any_of(required.RequiredFileNames, std::not_fn(&Text::empty)) ||
        std::ranges::any_of(payload.Effect.SupportFiles, std::not_fn(&Text::empty));
    if (!copiesMore) {
        if (payload.WantsPageScript)
            CopyPageScriptTo(job, folder);
        return;
    }
    const auto copied = CopyRequiredFiles(job, folder);
    if (const Fault* fault = FaultIn(copied); fault && *fault != Fault::Cancelled)
        m_bench.Dialogs.Say(Words(*fault));
}

} // namespace orvane
