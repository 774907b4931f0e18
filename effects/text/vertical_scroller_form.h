#pragma once

#include "effects/text/vertical_scroller.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Vertical Scroller.
class VerticalScrollerForm : public EffectForm<VerticalScroller>
{
public:
    explicit VerticalScrollerForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void Next() override;
    void Previous() override;

private:
    void AddItemsPage();
    void AddTextPage();
    void AddScrollerPage();
    void ChangePage();

    int m_page = 0; ///< the wizard page on screen; from the third on the wizard has ended once
};

} // namespace orvane
