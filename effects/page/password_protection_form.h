#pragma once

#include "effects/page/password_protection.h"
#include "windows/effect_form.h"

class QRadioButton;

namespace orvane {

/// The window of Password Protection. What a visitor has to type is shown as the author types it,
/// and kept nowhere but in the page or the script.
class PasswordProtectionForm : public EffectForm<PasswordProtection>
{
    Q_OBJECT

public:
    explicit PasswordProtectionForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void Next() override;
    void Previous() override;
    int PageBefore(int page) const override;
    void TakeDraft(TextView draft) override;

private:
    void AddSchemePage();
    void AddScriptPage();
    void AddServerPage();

    bool m_keepsOption = false; ///< the next script page keeps the option of a draft
    QRadioButton* optOnePassword;
};

} // namespace orvane
