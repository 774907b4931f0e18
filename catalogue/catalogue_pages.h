#pragma once

#include "catalogue/effect_section.h"
#include "core/complaint.h"

#include <QStackedWidget>

#include <functional>
#include <vector>

namespace orvane {

class FavoritesPage;

/// The pages of the catalogue: one for each kind of effects, one of the author's favorites and one
/// of the effects that a search found. The buttons of the other kinds come right behind the first
/// show, and each gets its picture when its page is shown for the first time.
class CataloguePages : public QStackedWidget
{
public:
    /// `makerFor` gives what makes buttons of a group name; `settings` store the favorites and the
    /// effects used last, and must outlive this object.
    CataloguePages(const std::function<ButtonMaker(ControlName group)>& makerFor,
                   const Settings& settings);

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

    /// The widgets on which the buttons lie, page by page.
    std::vector<QWidget*> Pages() const;

private:
    void AddSecondButtons(const ButtonMaker& make);
    void FillKind(int tab);

    const Settings& m_settings;
    std::vector<EffectSection*> m_kinds;
    FavoritesPage* m_favorites;
    EffectSection* m_results;
};

} // namespace orvane
