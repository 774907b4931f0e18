#pragma once

#include "windows/ok_cancel_form.h"

namespace orvane {

/// The small window in which the author enters the link of one image.
class ImageFadeURLForm : public OkCancelForm
{
public:
    ImageFadeURLForm(Workbench& bench, TextView url, QWidget* parent = nullptr);

    /// The link in the field; after OK with "http://" in front if it began with "www.".
    Text URL() const;

protected:
    void Take() override;

private:
    QLineEdit* txtURL;
};

} // namespace orvane
