#pragma once

#include "catalogue/effect_section.h"
#include "core/complaint.h"

#include <QStackedWidget>

#include <array>
#include <functional>

namespace orvane {

class FavoritesPage;
class PageArea;

/// Gives what makes the buttons of a group name.
using MakerFinder = std::function<ButtonMaker(ControlName group)>;

/// The pages of the catalogue: one for each kind of effects, one of the author's favorites and one
/// of the effects that a search found. Each is made when it is shown for the first time.
class CataloguePages : public QStackedWidget
{
public:
    /// `makerFor` gives what makes buttons of a group name; `settings` store the favorites and the
    /// effects used last; `watcher` is asked about the events of the widgets on which the buttons
    /// lie. All must outlive this object.
    CataloguePages(MakerFinder makerFor, const Settings& settings, QObject& watcher);

    /// Shows the page of a tab, counted from 0, and drops what a search found.
    void ShowTab(int tab);

    /// Shows the page of the effects that a search found.
    void ShowFound(const EffectRows& effects);

    /// Whether the page of the favorites is shown.
    bool ShowsFavorites() const;

    /// Shows pictures and stars on the buttons of the page that is shown, and on the page of the
    /// favorites those that the settings store now.
    void Refresh();

    /// The first button of the page that is shown; null when there is none.
    EffectButton* FirstButton() const;

    /// Scrolls the page that is shown until the button can be seen.
    void BringIntoView(EffectButton& button);

private:
    void Show(std::size_t index);
    QWidget* MakePage(std::size_t index);

    MakerFinder m_makerFor;
    const Settings& m_settings;
    QObject& m_watcher;
    std::array<PageArea*, 5> m_areas{}; ///< null until it is shown, as the two parts of them
    FavoritesPage* m_favorites = nullptr;
    EffectSection* m_results = nullptr;
};

} // namespace orvane
