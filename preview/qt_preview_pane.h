#pragma once

#include "core/preview_pane.h"
#include "preview/outside_links.h"
#include "preview/page_boxes.h"
#include "preview/qt_held_drawing.h"
#include "preview/shown_file.h"
#include "preview/web_view.h"

#include <QWidget>

#include <optional>

class QLabel;
class QStackedLayout;

namespace orvane {

class QtPaneNote;
class QtQuietLine;
class QtStatusLine;

/// How addresses begin that stand for something in the program itself; there is no such place.
inline constexpr TextView ownLinkStart = u"http://orvane.invalid/";

/// The preview pane: the web view, above it a note on what it cannot show, and below it the status
/// line of the page. Of a live page that wants to show a box or a window, a line says so, with a
/// link that runs it with them. Where nothing can be shown, a note in its place says why and what
/// the author can do.
class QtPreviewPane : public QWidget, public PreviewPane, private WebViewOwner
{
    Q_OBJECT

public:
    QtPreviewPane(Dialogs& dialogs, Shell& shell, FileStore& files, QWidget* parent = nullptr);
    ~QtPreviewPane() override;

    bool IsReady() const override { return m_view != nullptr; }
    /// As PreviewPane says; a note stands in place of the page when the web view cannot be used.
    [[nodiscard]] Done Navigate(const PanePage& page) override;
    void ShowLive(const LivePage& page) override;
    void LeaveFile() override;
    void Clear() override;

    /// Loads the web view before the first page needs it; a failure is told with the first page.
    void Warm();

    /// The web view; null until it is loaded.
    WebView* View() const { return m_view; }

signals:
    /// A live page has taken the place of the page before it.
    void LiveShown();
    /// The author has clicked on a link to an address of the program's own; `end` is what follows
    /// ownLinkStart in it.
    void OwnLinkFollowed(const orvane::Text& end);

private:
    PageBoxReply AnswerBox(const PageBox& box) override;
    bool MayOpenWindow() override;
    void LivePageShown() override;
    void PlacePointed(const PointedPlace& place) override;
    void PageNeeded() override;
    void PageRead() override;
    void StatusWritten(TextView status) override;
    void OutsideWanted(TextView target, bool byAuthor) override;
    void PageEnded(PageEnd end) override;

    void EndFile();
    void BuildViewPage();
    void ShowNote(const Text& words, bool canTryAgain);
    void ShowPage();
    void RunLive(bool isQuiet);
    void ShowNotes(const Text& note, bool runsInStatus);
    bool CanShow();
    void TryAgain();
    std::optional<Text> LoadView();

    ShownFile m_file;
    PageBoxes m_boxes;
    OutsideLinks m_outside;
    QtHeldDrawing m_held;

    std::optional<LivePage> m_live; ///< while a live page is shown, and not one of a file
    bool m_isQuiet = false;         ///< the live page shows no boxes and opens no windows

    WebView* m_view = nullptr;
    QStackedLayout* m_stack;
    QtPaneNote* m_note;
    QWidget* m_viewPage;
    QLabel* lblCannotShow;
    QtQuietLine* m_quietLine;
    QtStatusLine* lblPageStatus;
};

} // namespace orvane
