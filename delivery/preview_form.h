#pragma once

#include "core/payload.h"
#include "delivery/delivery_flow.h"
#include "delivery/publish_panel.h"
#include "delivery/required_files.h"
#include "preview/preview_page.h"
#include "windows/wizard_frame.h"

#include <array>
#include <functional>
#include <optional>

class QListWidget;
class QPlainTextEdit;
class QRadioButton;

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
};

/// The delivery wizard: leads from a finished payload to an effect in the author's page.
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

    /// Writes the new page around the effect; on failure the file keeps what it had.
    [[nodiscard]] Done SaveHTMLtoFile(TextView path);

protected:
    void Next() override;
    void Previous() override;
    void showEvent(QShowEvent* event) override;

private:
    void AddPreviewPanel();
    void AddEditorPanel();
    void AddMethodPanel();
    void AddPagePanel();
    /// What one of the three pages with code to copy is made of.
    struct CodePanel
    {
        int Panel;
        const char* Box;
        const char* CopyButton;
        TextView AccessibleName;
    };
    void AddCodePanel(const CodePanel& words, TextView code, TextView example);
    void AddCodePanels();
    void AddPublishPanel();
    void AddFinishPanel();

    void ChangePage(DeliveryStep step);
    void ShowPageControls();
    void ShowFinish();
    void KeepEditor();
    void OfferEditorHelp();
    void BeginPreview();
    void Preview(PreviewMode mode);
    void FinishCopying(const AfterCopying& after);
    void BrowseForPage();
    void InsertIntoPage();
    void SaveWebPage();
    /// The missing names; nothing when a fault ended the copying and the author was told.
    std::optional<MissingFiles> CopyFiles(TextView folder);
    CopyDesk Desk() const;
    void GoOnTo(std::int16_t page);
    void CopyCode(QPlainTextEdit* box);
    InsertMode Mode() const;
    DeliveryFacts Facts() const;

    FinishedPayload m_payload;
    QWidget* m_pane;
    PreviewWindows m_windows;
    DeliveryStep m_step;
    DeliveryEnd m_end = DeliveryEnd::Finished;
    int m_editorTopic = 0;
    bool m_isPreviewed = false;
    bool m_filesListed = false;

    PublishPanel* m_publishPanel;
    QListWidget* lstHTMLEditors;
    std::array<QRadioButton*, insertModes.size()> optInsertMode{};
    QLabel* lblAutoStep1;
    QLabel* lblAutoStep2;
    QLabel* lblAutoStep3;
    QLineEdit* txtFileName;
    QPushButton* cmdBrowse;
    QPushButton* cmdAutoInsert;
    QLabel* lblBackupFile;
    QPushButton* cmdSaveWebPage;
    std::array<LinkLabel*, 3> lblNeedHelp{};
    QListWidget* lstFilesToUpload;
};

} // namespace orvane
