#pragma once

#include "core/effect.h"
#include "core/workbench.h"
#include "preview/live_page.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QVBoxLayout;

namespace orvane {

class PagePanePanel;
class WizardForm;

/// The live preview beside a wizard: the effect as it would be delivered with the fields as they
/// stand, in an empty page or in the author's. While it is not in sight it does nothing.
class LivePreviewPanel : public QWidget
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane, or null; the panel shows it while it is in
    /// sight, without owning it. `effect` gives what the wizard would deliver. All of them must
    /// outlive the panel.
    LivePreviewPanel(Workbench& bench, QWidget* pane, std::function<Deliverable()> effect);

    /// Shows the effect as it is now, in a moment.
    void Update();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// Whether a page that is the same as the one before is shown once more.
    enum class Again
    {
        No,
        Yes,
    };

    void Build();
    void BuildViews();
    void Begin();
    void ShowPicture(Again again = Again::No);
    void Show(LivePage page, Again again);
    PaneView View() const;

    void ListPages();
    void ChoosePage();
    void GoTo(const Text& path);

    Workbench& m_bench;
    QWidget* m_pane;
    std::function<Deliverable()> m_effect;
    QTimer m_soon{this};             ///< runs while a change waits for its picture
    PagePanePanel* m_page = nullptr; ///< null until the panel was in sight for a moment

    HostFile m_host;
    bool m_isHostNew = false;          ///< no picture of the effect was shown in it yet
    std::optional<LivePicture> m_good; ///< of the last effect that passed its checks
    std::optional<LivePage> m_shown;

    QVBoxLayout* m_rows;
    QComboBox* cboPreviewIn = nullptr;
    QLabel* lblPreviewCheck = nullptr;
    QComboBox* cboPreviewView = nullptr;
    QCheckBox* chkReducedMotion = nullptr;
    QCheckBox* chkRunsScript = nullptr;
};

/// Puts the live preview of its effect beside the wizard; `bench` and `pane` are as in the panel's
/// constructor. Called once the wizard has its fields and before it is shown.
void AddLivePreview(WizardForm& wizard, Workbench& bench, QWidget* pane);

} // namespace orvane
