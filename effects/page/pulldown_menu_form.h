#pragma once

#include "effects/page/pulldown_menu.h"
#include "windows/effect_form.h"

namespace orvane {

class RowListPanel;

/// The window of the Pulldown Menu.
class PulldownMenuForm : public EffectForm<PulldownMenu>
{
    Q_OBJECT

public:
    explicit PulldownMenuForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void Add(int button);
    void EditItem();

    RowListPanel* m_items;
};

} // namespace orvane
