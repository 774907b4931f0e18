#pragma once

#include "core/preview_pane.h"

#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

#include <map>

namespace orvane {

/// The scheme of the addresses of live pages.
inline constexpr char liveScheme[] = "orvane-page";

/// Makes the addresses of live pages known to the engine. Called before the engine starts; later
/// calls do nothing.
void RegisterLiveScheme();

/// Answers for what live pages read. A page's address has a number, so that one that is still shown
/// reads its own files while the next one reads others of the same names.
class LiveScheme : public QWebEngineUrlSchemeHandler
{
public:
    using QWebEngineUrlSchemeHandler::QWebEngineUrlSchemeHandler;

    /// The address of an empty page of the same origin.
    static QUrl EmptyPage();

    /// Gives the page an address; the pages with other numbers than `kept` are forgotten.
    QUrl Add(int number, const LivePage& page, int kept);

    /// Whether something is there to be read under the address.
    bool Has(const QUrl& url) const;

    void requestStarted(QWebEngineUrlRequestJob* job) override;

private:
    const LivePage* PageOf(const QUrl& url) const;

    std::map<int, LivePage> m_pages;
};

} // namespace orvane
