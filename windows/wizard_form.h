#pragma once

#include "core/catalogue.h"
#include "core/effect.h"
#include "core/opening.h"
#include "windows/wizard_frame.h"

#include <optional>
#include <vector>

class QTimer;

namespace orvane {

/// The words above a wizard page, and where its focus goes.
struct WizardPage
{
    TextView Heading;
    TextView SubHeading;
    ControlName Focus = {}; ///< gets the focus when the page is shown; empty: the first control
};

/// The window of one effect, a wizard of one or more pages. Done hides it and keeps the fields as
/// they are, Cancel closes it; what it produced is read with TakePayload(). Files that the effect
/// makes are written before it hides. What the author entered is kept as a draft file until the
/// effect was delivered, and is offered when the window opens the next time; so is what was
/// delivered last.
class WizardForm : public WizardFrame
{
    Q_OBJECT

public:
    /// The effect's row in the catalogue gives title and help topic.
    WizardForm(ControlName name, EffectKind kind, Workbench& bench, QWidget* parent);

    /// Shows what the window opens with, on its first page; without a call it is fresh.
    virtual void Open(const Opening& opening) = 0;

    /// What Done would hand over with the fields as they stand. Changes and asks nothing.
    virtual Deliverable WouldDeliver() const = 0;

    /// The effect that the window makes.
    EffectKind Kind() const { return FindCommand(m_effect)->Kind; }

    /// What the fields hold as a draft's text, without the secret ones.
    Text Fields() const { return Draft(); }

    /// The payload of a Done since the last call; nothing when there was none, as after Cancel.
    std::optional<EffectPayload> TakePayload();

    /// Keeps the fields for the next time, and removes the draft unless it is other work than this
    /// window's; called when the effect was delivered.
    void WasDelivered();

signals:
    /// Fields were changed. Comes from the event loop, once for all changes since the last time.
    void FieldsChanged();

protected:
    /// Adds a wizard page; pages are counted from 0.
    PageBuilder AddPage(const WizardPage& words);

    /// Shows a page with its words; "Next" reads "&Done" on a last page. Expects an existing page;
    /// throws std::out_of_range for any other.
    void GoTo(int page);
    int Page() const { return CurrentPanel(); }
    const WizardPage& WordsOf(int page) const { return m_words.at(static_cast<std::size_t>(page)); }

    /// The page that "Next" leads to from this one; -1 when the wizard ends with it.
    virtual int PageAfter(int page) const = 0;

    /// The page that "Previous" leads to from this one.
    virtual int PageBefore(int page) const { return page - 1; }

    void Previous() override { GoTo(PageBefore(Page())); }

    /// Writes the files that the effect made, keeps the payload for TakePayload() and closes the
    /// window by accept(). When a file cannot be written, tells the author why and does no more.
    void Deliver(EffectPayload payload);

    /// Makes this the window of another effect: title, help topic and draft are then those of its
    /// catalogue row.
    void SetEffect(EffectKind kind);

    /// From now on the fields as they are need no draft. When `isFresh`, offers an earlier draft
    /// and the fields that were delivered last.
    void BeginDrafts(bool isFresh);

    /// Stores the fields as a draft in a moment, and when the window hides. Called when a field
    /// changed; does nothing while the window is hidden.
    void KeepDraftSoon();

    /// The text that stores the fields as a draft.
    virtual Text Draft() const = 0;

    /// Fills the fields from such a text.
    virtual void TakeDraft(TextView draft) = 0;

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void FocusOn(int page);
    Text DraftPath() const;
    Text LastTimePath() const;
    void KeepDraft();
    void Offer(LinkLabel& offer, const std::optional<Text>& fields);

    std::vector<WizardPage> m_words;
    std::optional<EffectPayload> m_payload;
    ControlName m_effect; ///< its menu command, under which drafts are kept
    Text m_kept; ///< the draft as last stored, or the fields as the window opened with them
    QTimer* m_keepTimer;
    LinkLabel* lblTakeUp;
    LinkLabel* lblAsLastTime;
};

} // namespace orvane
