#pragma once

#include "effects/page/anti_spam_link.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Anti-Spam Email Link.
class AntiSpamLinkForm : public EffectForm<AntiSpamLink>
{
    Q_OBJECT

public:
    explicit AntiSpamLinkForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
