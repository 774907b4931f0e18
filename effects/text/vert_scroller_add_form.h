#pragma once

#include "windows/ok_cancel_form.h"

#include <vector>

namespace orvane {

/// The window in which the author enters one message of the Vertical Scroller.
class VertScrollerAddForm : public OkCancelForm
{
public:
    /// Begins with the message's text and address; both are empty for a new one.
    VertScrollerAddForm(Workbench& bench, const std::vector<Text>& row, QWidget* parent);

    /// What the author entered, as a row of the list.
    std::vector<Text> Row() const;

protected:
    void Take() override;

private:
    orvane::MultiLineBox* txtItem;
    QLineEdit* txtItemURL;
};

} // namespace orvane
