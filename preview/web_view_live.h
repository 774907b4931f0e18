#pragma once

#include "core/preview_pane.h"
#include "preview/web_view_scheme.h"
#include "preview/web_view_surface.h"

#include <QTimer>
#include <QWebEngineProfile>
#include <QWidget>

#include <array>
#include <optional>

class QStackedLayout;

namespace orvane {

/// Shows one live page after the other, each of which is loaded behind the one before it.
class LiveView : public QWidget
{
public:
    /// All of them must outlive the view.
    LiveView(QWebEngineProfile& profile, FolderGuard& guard, WebViewOwner& owner,
             const QString& token);
    ~LiveView() override;

    /// As WebView::ShowLive().
    void Show(const LivePage& page, bool isQuiet);

    /// Unloads the page that is shown and gives up the one that is loaded.
    void Clear();

    /// The page that is shown.
    QWebEnginePage& Page() const { return *m_sheets[m_front].Page; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    /// One of the two pages that take turns.
    struct Sheet
    {
        PageView* View = nullptr;
        PreviewWebPage* Page = nullptr;
        QString Status = {};
        int Number = 0;          ///< in its address; 0 when it is empty
        int Shown = 0;           ///< how many live pages its page has shown
        bool IsEmptying = false; ///< its empty page is still loaded
    };
    struct Wanted
    {
        LivePage Page;
        bool IsQuiet = true;
    };

    void MakeSheet(Sheet& sheet);
    void MakePage(Sheet& sheet);
    void Load(const Wanted& wanted);
    void Loaded(Sheet& sheet, const QUrl& url);
    void Exchange();
    void GoOn();
    bool WaitsForBox(const std::function<void()>& action);
    void Empty(Sheet& sheet);
    void EndOf(Sheet& sheet);
    void EndLateLoad();
    void FitWidth();
    Sheet& Front() { return m_sheets[m_front]; }
    Sheet& Back() { return m_sheets[1 - m_front]; }

    PageContext m_context;
    QWebEngineProfile& m_profile;
    LiveScheme m_files;
    QStackedLayout* m_stack;
    std::array<Sheet, 2> m_sheets;
    std::size_t m_front = 0;
    int m_number = 0; ///< of the page that was loaded last
    int m_fitted = 0; ///< the width of window that the zoom is made for; 0: the author's own zoom
    bool m_isLoading = false;
    QTimer m_loadAtLast;   ///< runs while a page is wanted that is not there yet
    QTimer m_rest;         ///< since the last page was shown
    bool m_isHung = false; ///< the process that ends now was stopped
    Wanted m_loaded;       ///< the page of that number, without its bytes
    std::optional<Wanted> m_next;
};

} // namespace orvane
