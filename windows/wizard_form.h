#pragma once

#include "windows/wizard_frame.h"

#include <optional>

namespace orvane {

/// The window of one effect. Done hides it with its fields as they are, Cancel closes it; what it
/// produced is read with TakePayload().
class WizardForm : public WizardFrame
{
    Q_OBJECT

public:
    /// Forgets the files of an earlier effect. The kind gives the help topic.
    WizardForm(const QString& name, EffectKind kind, Workbench& bench, QWidget* parent);

    /// The payload of a Done since the last call, or nothing after Cancel.
    std::optional<EffectPayload> TakePayload();

protected:
    /// Hands the payload over to the delivery wizard.
    void Deliver(EffectPayload payload);

private:
    std::optional<EffectPayload> m_payload;
};

} // namespace orvane
