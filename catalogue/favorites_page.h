#pragma once

#include "catalogue/effect_section.h"

namespace orvane {

/// The author's favorite effects, and below them the effects used last; a sentence stands in place
/// of either when there are none.
class FavoritesPage : public QWidget
{
public:
    /// The two functions make the buttons of the two sections.
    FavoritesPage(ButtonMaker makeFavorite, ButtonMaker makeRecent);

    /// Shows the effects that the settings store.
    void Refresh(const Settings& settings);

private:
    EffectSection* m_favorites;
    EffectSection* m_recent;
};

} // namespace orvane
