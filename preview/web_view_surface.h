#pragma once

#include "preview/web_view_page.h"

#include <QWebEngineView>

#include <functional>

namespace orvane {

/// A browser view without a context menu, which notes in PageContext::AuthorActed that the author
/// clicked or typed.
class PageView : public QWebEngineView
{
public:
    PageView(PageContext& context, QWidget* parent);

    /// Says whether the author sees this view. One that lies behind another takes no focus.
    void SetSeen(bool isSeen);

    /// Called, if set, when the author clicks or types in the page.
    std::function<void()> AuthorActed;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Name(QWidget& part);

    PageContext& m_context;
    bool m_isSeen = true;
};

} // namespace orvane
