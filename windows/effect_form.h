#pragma once

#include "core/draft.h"
#include "core/effect.h"
#include "core/pasted_tag.h"
#include "windows/control_looks.h"
#include "windows/field_controls.h"
#include "windows/field_watch.h"
#include "windows/hidden_rows.h"
#include "windows/hint_lines.h"
#include "windows/wizard_form.h"

#include <optional>
#include <utility>
#include <variant>

namespace orvane {

/// The base class of all effect windows, made of what stands beside the parameters (see
/// core/effect.h). It binds each field that `ForEachField` names to its control, goes from page to
/// page while the checks pass, shows the look of `LookOf` and the hints of `HintsOf` where they are
/// and the values that `Tidy` mended, delivers what `Generate` gives, keeps drafts, and fills the
/// window from a pasted tag where the effect has a `ReadTag`.
template <class Effect>
class EffectForm : public WizardForm
{
public:
    using EffectType = Effect;

    /// The values of all fields as their controls show them. Expects a control for each field;
    /// throws std::logic_error for a field without one.
    Effect Parameters() const
    {
        Effect effect;
        ForEachField(effect, [this](const FieldName& name, auto& value) {
            m_controls.Read(name.Name, value);
        });
        if constexpr (HasRequiredFiles<Effect>)
            effect.Required = m_files;
        return effect;
    }

    /// Shows these values in the controls.
    void SetParameters(const Effect& effect)
    {
        const bool wasFilling = std::exchange(m_isFilling, true);
        if constexpr (HasRequiredFiles<Effect>)
            m_files = effect.Required;
        ForEachField(effect, [this](const FieldName& name, const auto& value) {
            m_controls.Write(name.Name, value);
        });
        m_isFilling = wasFilling;
        ShowFields();
    }

    void Open(const Opening& opening) override
    {
        if (const auto* recipe = std::get_if<Recipe>(&opening)) {
            GoTo(0);
            TakeDraft(recipe->Draft);
            BeginDrafts(false);
        } else if constexpr (requires(Effect & effect) { ReadTag(effect, PastedTag()); }) {
            if (const auto* tag = std::get_if<PastedTag>(&opening)) {
                m_tag = *tag;
                EditApplet();
                BeginDrafts(false);
            }
        }
    }

    Deliverable WouldDeliver() const override
    {
        return DeliverableOf(Parameters(), SurroundingsOf(m_bench));
    }

    /// Fills the window from the pasted tag that it was opened with, offers to take quotation marks
    /// off its values, and clears the shared EditMode.
    void EditApplet() requires requires(Effect& effect, const PastedTag& tag)
    {
        ReadTag(effect, tag);
    }
    {
        const Effect read = FromTag();
        SetParameters(read);
        m_bench.Core.EditMode = false;
        m_tag.Reading = Quotes::TakenOff;
        if (m_tag.Whole.empty() || FromTag() == read)
            return;
        auto* offer = AddOffer("lblTakeQuotesOff",
                               u"The values came with their quotation marks. Take them off.");
        offer->show();
        connect(offer, &LinkLabel::Followed, this, [this, offer] {
            SetParameters(FromTag());
            offer->hide();
        });
    }

protected:
    /// `kind` is one of the effect's kinds.
    EffectForm(ControlName name, Workbench& bench, QWidget* parent,
               EffectKind kind = Effect::Kinds.front())
        : EffectForm(name, bench, parent, kind, FreshOf<Effect>(kind))
    {
    }

    /// The window of an effect that has several faces, which shows this one when it is fresh.
    EffectForm(ControlName name, Workbench& bench, QWidget* parent, EffectKind kind, Effect fresh)
        : WizardForm(name, kind, bench, parent), m_controls(*this), m_fresh(std::move(fresh))
    {
    }

    /// Adds the row of buttons and shows a fresh effect. Called last in the constructor, after all
    /// pages.
    void AddButtons(Buttons buttons, ControlName helpName = "cmdClickHereForHelp")
    {
        WizardForm::AddButtons(buttons, helpName);
        if constexpr (requires(const Effect& effect) { effect.Others; })
            new HiddenRows("Others", this);
        const Effect fresh;
        ForEachField(fresh,
                     [this](const FieldName& name, const auto&) { m_controls.TakeBounds(name); });
        SetParameters(Fresh());
        GoTo(0);
        BeginDrafts(true);
        WatchFields();
    }

    /// What a fresh window shows.
    Effect Fresh() const
    {
        Effect effect = m_fresh;
        if constexpr (requires { Recall(effect, m_bench.Settings); })
            Recall(effect, m_bench.Settings);
        return effect;
    }

    /// Shows what depends on the values of the fields and stands in no `LookOf`. Called when a
    /// field changed, and by SetParameters() once all of them did.
    virtual void UpdateForm() {}

    /// Shows everything that depends on the values of the fields.
    void ShowFields()
    {
        if (m_isFilling)
            return;
        if constexpr (requires(const Effect& effect) { LookOf(effect); })
            if (Look look = LookOf(Parameters()); look != m_look) {
                ShowLook(*this, look);
                m_look = std::move(look);
                ShowHints();
            }
        UpdateForm();
    }

    /// Whether the fields are being changed by SetParameters(), and not by the author.
    bool IsFilling() const { return m_isFilling; }

    void Next() override
    {
        const Effect effect = Parameters();
        if (const auto complaint = ComplaintOn(effect, Page()))
            return ShowComplaint(*complaint);
        if (const int page = PageAfter(Page()); page >= 0)
            GoTo(page);
        else
            Finish(effect);
    }

    int PageAfter(int page) const override { return NextPageOf(Parameters(), page); }

    /// Tidies an effect that passed its checks, and delivers it.
    void Finish(Effect effect)
    {
        TidyFields(effect);
        if (effect != Parameters())
            SetParameters(effect);
        if constexpr (requires { Remember(effect, m_bench.Settings); })
            Remember(effect, m_bench.Settings);
        Deliver(PayloadOf(effect, SurroundingsOf(m_bench)));
    }

    /// What Browse buttons and lists of images recorded: the effect's `Required`, where it has one.
    RequiredFiles m_files;

    Text Draft() const override { return WriteDraft(Parameters()); }

    void TakeDraft(TextView draft) override
    {
        Effect effect = Parameters();
        ReadDraft(effect, draft);
        SetParameters(effect);
    }

private:
    void WatchFields()
    {
        const Effect fresh;
        ForEachField(fresh, [this](FieldName name, const auto&) { m_watch.Add(name.Name); });
        connect(&m_watch, &FieldWatch::Changed, this, [this] { ShowFields(); });
        connect(&m_watch, &FieldWatch::Settled, this, [this] {
            ShowFields();
            ShowHints();
            KeepDraftSoon();
            emit FieldsChanged();
        });
        ShowHints();
    }

    void ShowHints()
    {
        if constexpr (requires(const Effect& effect) { HintsOf(effect); })
            m_hints.Show(HintsOf(Parameters()));
    }

    Effect FromTag() const
    {
        Effect effect;
        ReadTag(effect, m_tag);
        return effect;
    }

    FieldControls m_controls;
    const Effect m_fresh;
    FieldWatch m_watch{*this};
    HintLines m_hints{*this};
    Look m_look; ///< as it was shown last
    bool m_isFilling = false;
    PastedTag m_tag;
};

} // namespace orvane
