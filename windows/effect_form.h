#pragma once

#include "core/draft.h"
#include "core/effect.h"
#include "core/pasted_tag.h"
#include "windows/field_controls.h"
#include "windows/field_watch.h"
#include "windows/hint_lines.h"
#include "windows/paged_form.h"

#include <optional>

namespace orvane {

/// The base class of all effect windows, made of what stands beside the parameters (see
/// core/effect.h). It binds each field that `ForEachField` names to its control, goes from page to
/// page while the checks pass, shows the hints of `HintsOf` where there is one and the values that
/// `Tidy` mended, delivers what `Generate` gives, keeps drafts, and fills the window from a pasted
/// tag where the effect has a `ReadTag`.
template <class Effect>
class EffectForm : public PagedForm
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
        if constexpr (HasRequiredFiles<Effect>)
            m_files = effect.Required;
        ForEachField(effect, [this](const FieldName& name, const auto& value) {
            m_controls.Write(name.Name, value);
        });
        UpdateForm();
    }

    /// Fills the window from the pasted tag, offers to take quotation marks off its values, and
    /// clears the shared EditMode.
    void EditApplet() requires requires(Effect& effect, const PastedTag& tag)
    {
        ReadTag(effect, tag);
    }
    {
        const OrvaneCore& core = m_bench.Core;
        m_tag = {core.PastedApplet, core.AppletTextAfterCODE, core.AppletText};
        FillFromTag();
        m_bench.Core.EditMode = false;
        if (m_tag.Whole.empty())
            return;
        auto* offer = AddOffer("lblTakeQuotesOff",
                               u"The values came with their quotation marks. Take them off.");
        offer->show();
        connect(offer, &LinkLabel::Followed, this, [this, offer] {
            m_tag.Reading = Quotes::TakenOff;
            FillFromTag();
            offer->hide();
        });
    }

protected:
    /// `kind` is one of the effect's kinds.
    EffectForm(ControlName name, Workbench& bench, QWidget* parent,
               EffectKind kind = Effect::Kinds.front())
        : PagedForm(name, kind, bench, parent), m_controls(*this), m_freshKind(kind)
    {
    }

    /// Adds the row of buttons, and shows a fresh effect or, in EditMode, the pasted one. Called
    /// last in the constructor, after all pages.
    void AddButtons(Buttons buttons, ControlName helpName = "cmdClickHereForHelp")
    {
        PagedForm::AddButtons(buttons, helpName);
        SetParameters(Fresh());
        GoTo(0);
        bool isFresh = true;
        if constexpr (requires(Effect & effect, const PastedTag& tag) { ReadTag(effect, tag); }) {
            isFresh = !m_bench.Core.EditMode;
            if (!isFresh)
                EditApplet();
        }
        BeginDrafts(isFresh);
        BeginHints();
    }

    /// What a fresh window shows.
    Effect Fresh() const
    {
        Effect effect = FreshOf<Effect>(m_freshKind);
        if constexpr (requires { Recall(effect, m_bench.Settings); })
            Recall(effect, m_bench.Settings);
        return effect;
    }

    /// Shows what depends on the values of the fields. SetParameters() calls it; a window that
    /// needs it when the author changes a field connects that itself.
    virtual void UpdateForm() {}

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
    /// Keeps the hints below the fields true while the author changes them.
    void BeginHints()
    {
        if constexpr (requires(const Effect& effect) { HintsOf(effect); }) {
            const auto show = [this] { m_hints.Show(HintsOf(Parameters())); };
            connect(&m_watch, &FieldWatch::Changed, this, show);
            const Effect fresh;
            ForEachField(fresh, [this](FieldName name, const auto&) { m_watch.Add(name.Name); });
            show();
        }
    }

    void FillFromTag()
    {
        Effect effect;
        ReadTag(effect, m_tag);
        SetParameters(effect);
    }

    FieldControls m_controls;
    const EffectKind m_freshKind;
    FieldWatch m_watch{*this};
    HintLines m_hints{*this};
    PastedTag m_tag;
};

} // namespace orvane
