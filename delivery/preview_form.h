#pragma once

#include "delivery/delivery_flow.h"
#include "delivery/delivery_panel.h"
#include "preview/preview_page.h"
#include "windows/wizard_frame.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace orvane {

class PreviewPanel;

/// How the delivery wizard ended.
enum class DeliveryEnd
{
    Finished,     ///< by Done, Cancel or closing the window: the effect's wizard closes too
    BackToWizard, ///< the author wants to change the effect
    Pointing,     ///< the author wants to point at the effect's place in Page()
    PageEffects,  ///< the author wants to see the effects on Page(); else as Finished
};

/// The windows that the delivery wizard opens, each by a function that returns when it is closed.
struct PreviewWindows
{
    std::function<void()> ShowOptions; ///< the preferences
    MakeFolderWindow MakeFolder;
    /// Offers the backups of the page with this full path; true when the author brought one back.
    std::function<bool(const Text& page)> BringBack;
    PickedFileFinder PickedFile; ///< looks among the files picked in the effect's wizard
};

/// The delivery wizard: leads from a finished payload to an effect in the author's page. This class
/// decides which page comes next; what a page shows and does is in its panel.
class PreviewForm : public WizardFrame
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane, or null. This window shows it while it
    /// exists, without owning it. Bench and `windows` must work for as long.
    PreviewForm(Workbench& bench, const EffectPayload& effect, QWidget* pane,
                PreviewWindows windows, QWidget* parent = nullptr);

    /// Clears the pane and gives it back, removes the preview page's file and empties the HEAD and
    /// BODY code of the shared payload.
    ~PreviewForm() override;

    /// How the wizard ended; meaningful once the window has closed.
    DeliveryEnd End() const { return m_end; }

    /// The full path of the page that goes with the last two of the ends.
    const Text& Page() const { return m_page; }

    /// Begins the preview as well, the first time, where the browser is there.
    void setVisible(bool isVisible) override;

    /// Whether the effect stands in a page or its code was put on the clipboard.
    bool WasDelivered() const { return m_report.HasDelivered(); }

protected:
    /// Begins the preview otherwise, behind the first sight of the window.
    void paintEvent(QPaintEvent* event) override;
    void Next() override;
    void Previous() override;

private:
    /// Adds the pages after the preview, unless they are there. They are built only after the
    /// preview was shown, so that it appears sooner.
    void BuildPanels();
    void ConnectPanels();
    void AddPanelOf(int index, QWidget* content);

    void ChangePage(DeliveryStep step);
    void ShowPage(const DeliveryPage& page, int panel);
    /// Makes this button the one that Enter presses, and gives it the focus; null means "Next".
    void SetEnterButton(QPushButton* action);
    void OfferLastPage();
    void PutIntoPage(const Text& page);
    void PutIntoAnotherPage();
    /// Lets the buttons lead on from the last page again.
    void LeaveFinish();
    void ShowFinish();
    void ShowFinishAnew();
    void ChoosePageScript(bool isWanted);
    /// Puts the page script into pages that were written without it.
    void AddPageScript(const std::vector<Text>& pages);
    void BeginPreview();
    void Preview(PreviewMode mode);
    void FinishCopying(const AfterCopying& after);
    void InsertByHand(const Text& page);
    void GoOnTo(std::int16_t page);
    void EndWith(DeliveryEnd end, const Text& page);
    CopyJob Job();
    InsertMode Mode() const;
    DeliveryFacts Facts() const;

    FinishedPayload m_payload;
    DeliveryReport m_report;
    QWidget* m_pane;
    PreviewPanel* m_preview;
    PreviewWindows m_windows;
    DeliveryStep m_step;
    DeliveryEnd m_end = DeliveryEnd::Finished;
    Text m_page;
    bool m_isPreviewed = false;
    std::optional<DeliveryPanels> m_panels; ///< nothing until BuildPanels()
};

} // namespace orvane
