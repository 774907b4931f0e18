#pragma once

#include "effects/page/pulldown_menu.h"
#include "windows/ok_cancel_form.h"

namespace orvane {

/// The window for one item of a pulldown menu.
class PulldownURLForm : public OkCancelForm
{
    Q_OBJECT

public:
    /// Shows the item; a new one has empty fields.
    PulldownURLForm(Workbench& bench, const MenuItem& item, QWidget* parent = nullptr);

    /// What stands in the fields; after OK an item that passes Check().
    MenuItem Item() const;

protected:
    void Take() override;

private:
    QLineEdit* txtMenuItem;
    QLineEdit* txtMenuItemURL;
};

} // namespace orvane
