#pragma once

#include "windows/ok_cancel_form.h"

namespace orvane {

/// The small window in which the author enters the link of one image.
class ImageFadeURLForm : public OkCancelForm
{
public:
    ImageFadeURLForm(Workbench& bench, TextView url, QWidget* parent = nullptr);

    /// The link as it was taken.
    Text URL() const;

protected:
    void Take() override;

private:
    QLineEdit* txtURL;
};

} // namespace orvane
