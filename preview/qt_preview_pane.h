#pragma once

#include "core/file_store.h"
#include "core/preview_pane.h"
#include "core/shell.h"
#include "preview/page_boxes.h"
#include "preview/web_view.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>

class QLabel;
class QPushButton;
class QStackedLayout;

namespace orvane {

/// The preview as the author sees it: the web view with a status line below it or, where there is
/// nothing to see, a note that says why and what can be done.
class QtPreviewPane : public QWidget, public PreviewPane, private WebViewOwner
{
public:
    QtPreviewPane(Dialogs& dialogs, Shell& shell, FileStore& files, QWidget* parent = nullptr);
    ~QtPreviewPane() override;

    /// Shows the page file in the web view, loaded now if it was not before; a note says so when
    /// either cannot be used.
    void Navigate(TextView path) override;
    void Clear() override;

    /// Loads the web view ahead of the first page; a failure shows at the first page.
    void Warm();

    /// The web view; null as long as it is not loaded.
    WebView* View() const { return m_view; }

    /// What the note's "Preview in Browser" does; unless set, the desktop opens the page file.
    std::function<void()> PreviewInBrowser;

private:
    PageBoxReply AnswerBox(const PageBox& box) override;
    void PageNeeded() override;
    void PageRead() override;
    void StatusWritten(TextView status) override;
    void OutsideWanted(TextView target, bool byAuthor) override;
    void PageEnded(PageEnd end) override;

    void BuildNotePage();
    void BuildViewPage();
    void ShowNote(const Text& words, bool canTryAgain);
    void ShowPage();
    void TryAgain();
    void OpenInBrowser();
    [[nodiscard]] Done RestorePage();
    std::optional<Text> LoadView();

    Dialogs& m_dialogs;
    Shell& m_shell;
    FileStore& m_files;
    PageBoxes m_boxes;

    Text m_path;
    std::string m_page; ///< the page's bytes, since its file is deleted once it is read
    bool m_fileGone = true;
    bool m_ledOutside = false; ///< the author was asked about an address outside
    bool m_askingOutside = false;

    WebView* m_view = nullptr;
    QStackedLayout* m_stack;
    QWidget* m_notePage;
    QWidget* m_viewPage;
    QLabel* lblPreviewNote;
    QLabel* lblPageStatus;
    QPushButton* cmdTryAgain;
    QPushButton* cmdPreviewInBrowser;
};

} // namespace orvane
