#pragma once

#include "delivery/delivery_flow.h"
#include "delivery/delivery_panel.h"
#include "preview/preview_page.h"
#include "windows/wizard_frame.h"

#include <optional>

namespace orvane {

/// How the delivery wizard ended.
enum class DeliveryEnd
{
    Finished,     ///< Done, Cancel or the window's frame: the effect's wizard is unloaded too
    BackToWizard, ///< the author wants to change the effect
};

/// The windows that the delivery wizard opens.
struct PreviewWindows
{
    std::function<void()> ShowOptions;
    MakeFolderWindow MakeFolder;
    /// Offers the backups of a page; true when it holds an earlier version then.
    std::function<bool(const Text& page)> BringBack;
};

/// The delivery wizard: leads from a finished payload to an effect in the author's page. This is
/// the way from page to page; what a page shows and does stands in its panel.
class PreviewForm : public WizardFrame
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane; it is borrowed while this window lives and
    /// may be null.
    PreviewForm(Workbench& bench, const EffectPayload& effect, QWidget* pane,
                PreviewWindows windows, QWidget* parent = nullptr);

    /// Gives the pane back, removes the preview page and empties the shared payload's code.
    ~PreviewForm() override;

    DeliveryEnd End() const { return m_end; }

    /// Whether the effect reached a page or the clipboard.
    bool WasDelivered() const { return m_report.HasDelivered(); }

protected:
    void Next() override;
    void Previous() override;
    void showEvent(QShowEvent* event) override;

private:
    /// Adds the pages behind the preview, once: they are built when the author goes on to them, so
    /// that the preview comes the sooner.
    void NeedPanels();
    void ConnectPanels();
    void AddPanelOf(int index, QWidget* content);

    void ChangePage(DeliveryStep step);
    void ShowPage(const DeliveryPage& page, int panel);
    /// Enter does what waits to be done on the page; "Next" when that is null.
    void LeadEnterTo(QPushButton* action);
    void ShowFinish();
    void ChooseRunsToday(bool isWanted);
    void BeginPreview();
    void Preview(PreviewMode mode);
    void FinishCopying(const AfterCopying& after);
    void InsertByHand();
    void GoOnTo(std::int16_t page);
    CopyDesk Desk();
    InsertMode Mode() const;
    DeliveryFacts Facts() const;

    FinishedPayload m_payload;
    DeliveryReport m_report;
    QWidget* m_pane;
    PreviewWindows m_windows;
    DeliveryStep m_step;
    DeliveryEnd m_end = DeliveryEnd::Finished;
    bool m_isPreviewed = false;
    std::optional<DeliveryPanels> m_panels; ///< empty as long as the preview alone was shown
};

} // namespace orvane
