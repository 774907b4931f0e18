#pragma once

#include "core/catalogue.h"
#include "windows/wizard_frame.h"

#include <optional>

class QTimer;

namespace orvane {

/// The window of one effect. Done hides it with its fields as they are, Cancel closes it; what it
/// produced is read with TakePayload(). What the author entered is kept as a draft until the effect
/// was delivered, and offered when the window opens next.
class WizardForm : public WizardFrame
{
    Q_OBJECT

public:
    /// Forgets the files of an earlier effect. The effect is the one whose catalogue row names this
    /// window; its row gives title and help topic.
    WizardForm(ControlName name, Workbench& bench, QWidget* parent);

    /// The payload of a Done since the last call, or nothing after Cancel.
    std::optional<EffectPayload> TakePayload();

    /// Throws the draft away; called when the effect was delivered.
    void DropDraft();

protected:
    /// Hands the payload over to the delivery wizard. A window that has more to do then does it
    /// first, and stays open when that fails.
    virtual void Deliver(EffectPayload payload);

    /// Makes the window that of another effect with a row of its own: title, help topic, draft.
    void SetEffect(EffectKind kind);

    /// From now on the fields are kept as a draft; an earlier draft is offered when `isFresh`.
    void BeginDrafts(bool isFresh);

    /// The fields as a draft, and the fields out of a draft.
    virtual Text Draft() const = 0;
    virtual void TakeDraft(TextView draft) = 0;

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    Text DraftPath() const;
    void KeepDraft();

    std::optional<EffectPayload> m_payload;
    EffectKind m_kind = EffectKind::None;
    Text m_kept; ///< the draft as it was last stored, or the fresh fields
    QTimer* m_keepTimer;
    LinkLabel* lblTakeUp;
};

} // namespace orvane
