#pragma once

#include "core/draft.h"
#include "core/pasted_tag.h"
#include "windows/field_controls.h"
#include "windows/paged_form.h"

namespace orvane {

/// What the window of every effect does, over the fields that `ForEachField` names: it shows and
/// gives the parameters, asks `Check` (or `CheckPage` on each page), writes back what `Tidy` mends,
/// hands over what `Generate` gives, keeps drafts, and fills itself from a pasted tag where the
/// effect has a `ReadTag`.
template <class Effect>
class EffectForm : public PagedForm
{
public:
    Effect Parameters() const
    {
        Effect effect;
        ForEachField(effect, [this](FieldName name, auto& value) {
            SetField(value, m_controls.Read(name.Name));
        });
        return effect;
    }

    void SetParameters(const Effect& effect)
    {
        ForEachField(effect, [this](FieldName name, const auto& value) {
            m_controls.Write(name.Name, TextsOf(value));
        });
        UpdateForm();
    }

    /// Fills the window from the pasted tag and ends the edit.
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
    EffectForm(ControlName name, Workbench& bench, QWidget* parent)
        : PagedForm(name, bench, parent), m_controls(*this, bench)
    {
    }

    /// Adds the row of buttons, and shows a fresh effect or the pasted one. Called last.
    void AddButtons(Buttons buttons, ControlName helpName = "cmdClickHereForHelp")
    {
        PagedForm::AddButtons(buttons, helpName);
        SetParameters(Fresh());
        GoTo(0);
        const bool isFresh = !m_bench.Core.EditMode;
        if constexpr (requires(Effect & effect, const PastedTag& tag) { ReadTag(effect, tag); })
            if (!isFresh)
                EditApplet();
        BeginDrafts(isFresh);
    }

    /// What a fresh window shows; where the struct's defaults are not all that is known.
    virtual Effect Fresh() const { return {}; }

    /// Shows what depends on the values of the fields; called whenever they were set.
    virtual void UpdateForm() {}

    void Next() override
    {
        const Effect effect = Parameters();
        if (const auto complaint = CheckHere(effect))
            return Report(*complaint);
        if (const int page = PageBehind(Page()); page >= 0)
            GoTo(page);
        else
            Finish(effect);
    }

    /// What the effect gives to a page; for an effect whose `Generate` wants more than the fields.
    virtual EffectPayload Produce(const Effect& effect) const { return Generate(effect); }

    /// Ends the wizard with an effect that passed its checks.
    void Finish(Effect effect)
    {
        if constexpr (requires { Tidy(effect); }) {
            Tidy(effect);
            SetParameters(effect);
        }
        Deliver(Produce(effect));
    }

    Text Draft() const override { return WriteDraft(Parameters()); }

    void TakeDraft(TextView draft) override
    {
        Effect effect = Parameters();
        ReadDraft(effect, draft);
        SetParameters(effect);
    }

private:
    std::optional<Complaint> CheckHere(const Effect& effect) const
    {
        if constexpr (requires { CheckPage(effect, 0); })
            return CheckPage(effect, Page());
        else
            return Check(effect);
    }

    void FillFromTag()
    {
        Effect effect;
        ReadTag(effect, m_tag);
        SetParameters(effect);
    }

    FieldControls m_controls;
    PastedTag m_tag;
};

} // namespace orvane
