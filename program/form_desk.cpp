#include "program/form_desk.h"

#include "core/numbers.h"
#include "delivery/bring_back_form.h"
#include "delivery/make_dir_form.h"
#include "delivery/preview_form.h"
#include "effects/effect_windows.h"
#include "effects/recipe.h"
#include "preview/live_preview_panel.h"
#include "program/about_form.h"
#include "program/all_effects_form.h"
#include "program/options_form.h"
#include "program/ov_main_form.h"
#include "program/page_effects_road.h"
#include "program/recipe_files.h"
#include "program/recipe_menu.h"
#include "program/startup.h"
#include "reedit/applet_tag.h"
#include "reedit/edit_applet_form.h"
#include "reedit/remembered_fields.h"
#include "services/chosen_effects.h"
#include "windows/focus_back.h"
#include "windows/picked_files.h"

#include <QCoreApplication>
#include <QTimer>

namespace orvane {

FormDesk::FormDesk(Workbench& bench, QWidget* pane) : m_bench(bench), m_pane(pane) {}

FormDesk::~FormDesk() = default;

void FormDesk::Start()
{
    if (StartUp(m_bench) == FirstWindow::OVMain) {
        ShowMainForm();
    } else {
        m_downloadForm = std::make_unique<DownloadForm>(m_bench);
        connect(m_downloadForm.get(), &QDialog::finished, this, [] { QCoreApplication::quit(); });
        m_downloadForm->show();
    }
    SetWizardParam(m_bench.Core);
}

void FormDesk::ShowMainForm()
{
    m_mainForm = std::make_unique<OVMainForm>(m_bench);
    PrepareMainWindow(m_bench.Core);
    connect(m_mainForm.get(), &OVMainForm::EffectWanted, this,
            [this](EffectKind kind) { OpenEffect(kind); });
    connect(m_mainForm.get(), &OVMainForm::EditAppletWanted, this, &FormDesk::EditApplet);
    connect(m_mainForm.get(), &OVMainForm::PreferencesWanted, this,
            [this] { ShowOptions(m_mainForm.get()); });
    connect(m_mainForm.get(), &OVMainForm::BringBackWanted, this,
            [this] { ShowBringBack({}, m_mainForm.get()); });
    connect(m_mainForm.get(), &OVMainForm::RecipeWanted, this, &FormDesk::OpenRecipeFile);
    connect(m_mainForm.get(), &OVMainForm::PageEffectsWanted, this, &FormDesk::ShowPageEffects);
    connect(m_mainForm.get(), &OVMainForm::AllEffectsWanted, this, &FormDesk::ShowAllEffects);
    connect(m_mainForm.get(), &OVMainForm::AboutWanted, this, [this] {
        AboutForm about(m_bench, m_mainForm.get());
        ShowModally(about);
    });
    m_mainForm->show();
}

Text FormDesk::ListEffectsOfTags()
{
    Text list = u"<ul>\n";
    for (const EffectKind kind : EffectsOfTags())
        list += Join({u"<li><a href=\"topic:",
                      NumberToText(help_topics::firstEffect + static_cast<int>(kind)), u"\">",
                      FindRow(kind)->Title, u"</a></li>\n"});
    return list + u"</ul>";
}

void FormDesk::OpenEffect(EffectKind kind, Opening opening)
{
    auto next = OpenWizard(kind, std::move(opening));
    while (next) {
        SetModes(m_bench.Core, RowOf(next->Kind()).MenuCommand);
        next = OpenWizard(next->Kind(), Recipe{next->Draft()});
    }
}

std::optional<AnyEffect> FormDesk::OpenWizard(EffectKind kind, Opening opening)
{
    const auto wizard = MakeWizard(kind, m_bench, m_mainForm.get());
    if (wizard == nullptr)
        return std::nullopt;
    RememberEffect(m_bench.Settings, kind);
    const OrvaneCore& core = m_bench.Core;
    // Stays as it is: after a pasted tag that opened no wizard, the next one that reads tags finds
    // an empty tag.
    if (core.EditMode && std::holds_alternative<FreshStart>(opening))
        opening = PastedTag{{}, core.AppletTextAfterCODE, core.AppletText};
    wizard->Open(opening);
    std::optional<AnyEffect> other;
    AddRecipeMenu(*wizard, m_bench, [&](AnyEffect effect) {
        other = std::move(effect);
        wizard->reject();
    });
    AddLivePreview(*wizard, m_bench, m_pane);
    LeadThrough(*wizard);
    return other;
}

void FormDesk::OpenRecipeFile(const Text& path)
{
    const auto effect = OpenRecipe(m_bench, path);
    if (!effect)
        return;
    SetModes(m_bench.Core, RowOf(effect->Kind()).MenuCommand);
    OpenEffect(effect->Kind(), Recipe{effect->Draft()});
}

void FormDesk::OpenFile(const Text& path)
{
    if (IsRecipeName(path))
        return OpenRecipeFile(path);
    if (!m_bench.Files.FileExists(path))
        return m_bench.Dialogs.Say(Join({u"Orvane cannot find the file ", path, u"."}));
    OpenEffect(EffectKind::AdvancedAnimator, ProjectFile{path});
}

void FormDesk::LeadThrough(WizardForm& wizard)
{
    emit WizardOpened();
    while (true) {
        ShowModally(wizard);
        const auto payload = wizard.TakePayload();
        if (!payload)
            return;
        m_bench.Core.Payload = *payload;
        const Delivery delivery = ShowPreview(*payload, wizard);
        if (delivery.End == DeliveryEnd::PageEffects)
            ShowPageEffects(delivery.Page);
        if (delivery.End == DeliveryEnd::Pointing &&
            MakePageRoad().PutIn(delivery.Page, *payload, wizard) == PutInEnd::BackToWizard)
            continue;
        if (delivery.End != DeliveryEnd::BackToWizard)
            return;
    }
}

FormDesk::Delivery FormDesk::ShowPreview(const EffectPayload& payload, WizardForm& wizard)
{
    std::unique_ptr<PreviewForm> preview;
    const PreviewWindows windows{
        .ShowOptions = [&] { ShowOptions(preview.get()); },
        .MakeFolder =
            [&](TextView folder) {
                MakeDirForm makeDir(m_bench, folder, preview.get());
                ShowModally(makeDir);
                return makeDir.NewFolder();
            },
        .BringBack = [&](const Text& page) { return ShowBringBack(page, preview.get()) == page; },
        .PickedFile = [&](const Text& name) { return PickedFile(wizard, name); },
    };
    preview = std::make_unique<PreviewForm>(m_bench, payload, m_pane, windows, m_mainForm.get());
    ShowModally(*preview);
    if (preview->WasDelivered()) {
        RememberFields(m_bench.Files, m_bench.StateFolder, Finish(payload), wizard.Fields());
        wizard.WasDelivered();
    }
    return {preview->End(), preview->Page()};
}

void FormDesk::EditApplet()
{
    EditAppletForm form(m_bench, m_mainForm.get());
    ShowModally(form);
    if (const auto wanted = form.Wanted())
        OpenEffect(wanted->Kind, wanted->Tag);
}

void FormDesk::ShowAllEffects()
{
    std::optional<EffectKind> chosen;
    {
        AllEffectsForm all(m_bench, m_pane, m_mainForm.get());
        ShowModally(all);
        chosen = all.Chosen();
    }
    if (!chosen)
        return;
    SetModes(m_bench.Core, RowOf(*chosen).MenuCommand);
    OpenEffect(*chosen);
}

void FormDesk::ShowPageEffects(TextView page)
{
    emit WizardOpened();
    MakePageRoad().Show(page);
}

PageEffectsRoad FormDesk::MakePageRoad()
{
    return {m_bench, m_pane, m_mainForm.get(), [this](QDialog& window) { ShowModally(window); }};
}

void FormDesk::ShowOptions(QWidget* parent)
{
    OptionsForm options(m_bench, parent);
    ShowModally(options);
}

std::optional<Text> FormDesk::ShowBringBack(TextView page, QWidget* parent)
{
    BringBackForm form(m_bench, page, parent);
    ShowModally(form);
    return form.BroughtBack();
}

void FormDesk::ShowModally(QDialog& window)
{
    GiveFocusBack(window);
    // Not every window manager gives the keys to a window that follows another one.
    QTimer::singleShot(0, &window, &QWidget::activateWindow);
    window.exec();
}

} // namespace orvane
