#pragma once

#include "core/payload.h"
#include "core/workbench.h"
#include "reedit/put_in_form.h"

#include <functional>

class QDialog;
class QWidget;

namespace orvane {

class WizardForm;

/// Leads the author through the effects of a page: from their list to the wizard of one of them,
/// from there to the page as it would be, and back.
class PageEffectsRoad
{
public:
    /// `pane` is the widget of the bench's preview pane, or null. `show` shows a window and returns
    /// when it is closed. All of them must outlive the object.
    PageEffectsRoad(Workbench& bench, QWidget* pane, QWidget* parent,
                    std::function<void(QDialog&)> show);

    /// Shows the effects on the page with this full path; with an empty path the author looks for a
    /// page first. Returns when the author is done.
    void Show(TextView page);

    /// Puts an effect that the wizard made where the author points in the page with this full path.
    PutInEnd PutIn(TextView page, const EffectPayload& effect, WizardForm& wizard);

private:
    void Change(const EffectInPage& effect);
    void Add();
    void LeadThrough(WizardForm& wizard, PutInJob job);
    PutInEnd PutIn(const EffectPayload& effect, WizardForm& wizard, PutInJob job);
    FinishedPayload Finished(const EffectPayload& effect) const;
    void CopyFiles(FinishedPayload payload);

    Workbench& m_bench;
    QWidget* m_pane;
    QWidget* m_parent;
    std::function<void(QDialog&)> m_show;
    PageEffects m_page;
};

} // namespace orvane
