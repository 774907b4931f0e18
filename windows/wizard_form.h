#pragma once

#include "core/catalogue.h"
#include "windows/wizard_frame.h"

#include <optional>

class QTimer;

namespace orvane {

/// The window of one effect. Done hides it and keeps the fields as they are, Cancel closes it; what
/// it produced is read with TakePayload(). Files that the effect makes are written before it hides.
/// What the author entered is kept as a draft file until the effect was delivered, and is offered
/// when the window opens the next time.
class WizardForm : public WizardFrame
{
    Q_OBJECT

public:
    /// The effect's row in the catalogue gives title and help topic.
    WizardForm(ControlName name, EffectKind kind, Workbench& bench, QWidget* parent);

    /// The payload of a Done since the last call; nothing when there was none, as after Cancel.
    std::optional<EffectPayload> TakePayload();

    /// Removes the draft; called when the effect was delivered.
    void DropDraft();

protected:
    /// Writes the files that the effect made, keeps the payload for TakePayload() and closes the
    /// window by accept(). When a file cannot be written, tells the author why and does no more.
    void Deliver(EffectPayload payload);

    /// Makes this the window of another effect: title, help topic and draft are then those of its
    /// catalogue row.
    void SetEffect(EffectKind kind);

    /// From now on the fields are stored as a draft every two seconds and when the window hides.
    /// Offers an earlier draft when `isFresh`.
    void BeginDrafts(bool isFresh);

    /// The text that stores the fields as a draft.
    virtual Text Draft() const = 0;

    /// Fills the fields from such a text.
    virtual void TakeDraft(TextView draft) = 0;

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    Text DraftPath() const;
    void KeepDraft();

    std::optional<EffectPayload> m_payload;
    EffectKind m_kind = EffectKind::None;
    Text m_kept; ///< the draft as last stored, or the fields as the window opened with them
    QTimer* m_keepTimer;
    LinkLabel* lblTakeUp;
};

} // namespace orvane
