#pragma once

#include "effects/page/pulldown_menu.h"
#include "windows/ok_cancel_form.h"

namespace orvane {

/// The window for one item of a pulldown menu.
class PulldownURLForm : public OkCancelForm
{
    Q_OBJECT

public:
    /// Shows the item, whose fields are empty when it is a new one.
    PulldownURLForm(Workbench& bench, const MenuItem& item, QWidget* parent = nullptr);

    /// What the fields hold; after OK an item that may go into the menu.
    MenuItem Item() const;

protected:
    void Take() override;

private:
    QLineEdit* txtMenuItem;
    QLineEdit* txtMenuItemURL;
};

} // namespace orvane
