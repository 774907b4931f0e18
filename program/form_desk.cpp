#include "program/form_desk.h"

#include "core/numbers.h"
#include "delivery/bring_back_form.h"
#include "delivery/make_dir_form.h"
#include "delivery/preview_form.h"
#include "effects/applet/advanced_animator_form.h"
#include "effects/applet/image_effects_form.h"
#include "effects/applet/image_fade_form.h"
#include "effects/applet/more_image_effects_form.h"
#include "effects/applet/typewriter_text_form.h"
#include "effects/page/all_in_one_button_form.h"
#include "effects/page/anti_spam_link_form.h"
#include "effects/page/cursor_trail_form.h"
#include "effects/page/dynamic_button_form.h"
#include "effects/page/password_protection_form.h"
#include "effects/page/popup_alert_form.h"
#include "effects/page/popup_window_form.h"
#include "effects/page/pulldown_menu_form.h"
#include "effects/page/search_box_form.h"
#include "effects/page/slideshow_form.h"
#include "effects/text/digital_clock_form.h"
#include "effects/text/status_bar_ticker_form.h"
#include "effects/text/tooltips_form.h"
#include "effects/text/vertical_scroller_form.h"
#include "program/about_form.h"
#include "program/options_form.h"
#include "program/ov_main_form.h"
#include "program/startup.h"
#include "reedit/applet_tag.h"
#include "reedit/edit_applet_form.h"
#include "services/chosen_effects.h"
#include "windows/focus_back.h"

#include <QCoreApplication>

namespace orvane {

namespace {

using WizardMaker = std::unique_ptr<WizardForm> (*)(Workbench&, QWidget*);

template <class Form>
std::unique_ptr<WizardForm> Make(Workbench& bench, QWidget* parent)
{
    return std::make_unique<Form>(bench, parent);
}

/// The window of an effect; null while it has none.
WizardMaker MakerOf(EffectKind kind)
{
    switch (kind) {
    case EffectKind::AdvancedAnimator:
        return &Make<AdvancedAnimatorForm>;
    case EffectKind::DigitalClock:
        return &Make<DigitalClockForm>;
    case EffectKind::StatusBarTicker:
        return &Make<StatusBarTickerForm>;
    case EffectKind::Tooltips:
        return &Make<TooltipsForm>;
    case EffectKind::VerticalScroller:
        return &Make<VerticalScrollerForm>;
    case EffectKind::TypewriterText:
        return &Make<TypewriterTextForm>;
    case EffectKind::ImageEffects:
        return &Make<ImageEffectsForm>;
    case EffectKind::MoreImageEffects:
        return &Make<MoreImageEffectsForm>;
    case EffectKind::ImageFade:
        return &Make<ImageFadeForm>;
    case EffectKind::DynamicButton:
        return &Make<DynamicButtonForm>;
    case EffectKind::Slideshow:
        return &Make<SlideshowForm>;
    case EffectKind::CursorTrail:
        return &Make<CursorTrailForm>;
    case EffectKind::PopupAlert:
        return &Make<PopupAlertForm>;
    case EffectKind::PopupWindow:
        return &Make<PopupWindowForm>;
    case EffectKind::PulldownMenu:
        return &Make<PulldownMenuForm>;
    case EffectKind::AllInOneButton:
        return &Make<AllInOneButtonForm>;
    case EffectKind::AntiSpamLink:
        return &Make<AntiSpamLinkForm>;
    case EffectKind::SearchBox:
        return &Make<SearchBoxForm>;
    case EffectKind::Translator:
        return [](Workbench& bench, QWidget* parent) -> std::unique_ptr<WizardForm> {
            return std::make_unique<SearchBoxForm>(bench, parent, translateMode);
        };
    case EffectKind::PasswordScript:
        return &Make<PasswordProtectionForm>;
    default:
        return nullptr;
    }
}

} // namespace

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
    m_mainForm = std::make_unique<OVMainForm>(m_bench, &FormDesk::IsBuilt);
    PrepareMainWindow(m_bench.Core);
    connect(m_mainForm.get(), &OVMainForm::EffectWanted, this, &FormDesk::OpenEffect);
    connect(m_mainForm.get(), &OVMainForm::EditAppletWanted, this, &FormDesk::EditApplet);
    connect(m_mainForm.get(), &OVMainForm::PreferencesWanted, this,
            [this] { ShowOptions(m_mainForm.get()); });
    connect(m_mainForm.get(), &OVMainForm::BringBackWanted, this,
            [this] { ShowBringBack({}, m_mainForm.get()); });
    connect(m_mainForm.get(), &OVMainForm::AboutWanted, this, [this] {
        AboutForm about(m_bench, m_mainForm.get());
        ShowModally(about);
    });
    m_mainForm->show();
}

bool FormDesk::IsBuilt(EffectKind kind)
{
    return MakerOf(kind) != nullptr;
}

std::unique_ptr<WizardForm> FormDesk::MakeWizard(EffectKind kind, Workbench& bench, QWidget* parent)
{
    const WizardMaker maker = MakerOf(kind);
    return maker == nullptr ? nullptr : maker(bench, parent);
}

Text FormDesk::ListEffectsOfTags()
{
    Text list = u"<ul>\n";
    for (const EffectKind kind : EffectsOfTags())
        if (IsBuilt(kind))
            list += Join({u"<li><a href=\"topic:",
                          NumberToText(help_topics::firstEffect + static_cast<int>(kind)), u"\">",
                          FindRow(kind)->Title, u"</a></li>\n"});
    return list + u"</ul>";
}

void FormDesk::OpenEffect(const EffectCommand& command)
{
    const auto wizard = MakeWizard(command.Kind, m_bench, m_mainForm.get());
    if (wizard == nullptr)
        return;
    RememberEffect(m_bench.Settings, command.Kind);
    LeadThrough(*wizard);
}

void FormDesk::OpenProject(TextView path)
{
    if (!m_bench.Files.FileExists(path))
        return m_bench.Dialogs.Say(Join({u"Orvane cannot find the file ", path, u"."}));
    RememberEffect(m_bench.Settings, EffectKind::AdvancedAnimator);
    AdvancedAnimatorForm animator(m_bench, m_mainForm.get());
    animator.ShowProject(path);
    LeadThrough(animator);
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
        if (ShowPreview(*payload, wizard) == DeliveryEnd::Finished)
            return;
    }
}

DeliveryEnd FormDesk::ShowPreview(const EffectPayload& payload, WizardForm& wizard)
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
    };
    preview = std::make_unique<PreviewForm>(m_bench, payload, m_pane, windows, m_mainForm.get());
    ShowModally(*preview);
    if (preview->WasDelivered())
        wizard.DropDraft();
    return preview->End();
}

void FormDesk::EditApplet()
{
    EditAppletForm form(m_bench, m_mainForm.get());
    ShowModally(form);
    // An effect that has no wizard yet opens none, and the author is told nothing.
    if (const CatalogueRow* row = FindRow(form.Wanted()))
        OpenEffect(*FindCommand(row->MenuCommand));
    m_bench.Core.PastedApplet.clear();
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
    window.exec();
}

} // namespace orvane
