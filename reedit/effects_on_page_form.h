#pragma once

#include "reedit/effect_words.h"
#include "reedit/page_effects.h"
#include "windows/wizard_frame.h"

#include <functional>
#include <optional>

class QCheckBox;

namespace orvane {

class PagePanePanel;

/// What another window is to do with a page.
struct WantedOnPage
{
    std::optional<EffectInPage> Changed; ///< nothing: an effect is added
};

/// The window "Effects on a page": the effects in one page as a list, and beside it the page,
/// scrolled to the chosen one. Effects are taken out here, and brought back; to change or
/// add one, the window closes.
class EffectsOnPageForm : public WizardFrame
{
    Q_OBJECT

public:
    /// Shows the page of `page`, to which all commands are given. `pane` is the widget of the
    /// bench's preview pane, or null. `copyPageScript` copies the page script's file to a folder.
    /// All of them must outlive the window.
    EffectsOnPageForm(Workbench& bench, PageEffects& page, QWidget* pane,
                      std::function<void(TextView folder)> copyPageScript,
                      QWidget* parent = nullptr);

    /// What the author wants since the last call; nothing when the window was closed.
    std::optional<WantedOnPage> TakeWanted();

protected:
    void Next() override {}
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void AddPageRow(PageBuilder& rows);
    void AddCommands(PageBuilder& rows);
    void BrowseForPage();
    void GoTo(const Text& path);
    void ShowEffects();
    void ShowEffect();
    TextView Note() const;
    const EffectInPage* Chosen() const;
    void Change();
    void TakeOut();
    void BringBack();
    void ChoosePageScript(bool isWanted);

    PageEffects& m_page;
    std::function<void(TextView folder)> m_copyPageScript;
    PagePanePanel* m_pane;
    std::optional<WantedOnPage> m_wanted;

    QLineEdit* txtPage;
    ActingList* lstPageEffects;
    QLabel* lblEffect;
    QCheckBox* chkRunsToday;
    QPushButton* cmdBrowseForPage;
    QPushButton* cmdChange;
    QPushButton* cmdTakeOut;
    QPushButton* cmdBringBack;
    QPushButton* cmdAddEffect;
};

} // namespace orvane
