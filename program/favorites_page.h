#pragma once

#include "program/effect_section.h"

namespace orvane {

/// The author's favorite effects and the last ones used, each with a sentence where there is none.
class FavoritesPage : public QWidget
{
public:
    FavoritesPage(ButtonMaker makeFavorite, ButtonMaker makeRecent);

    /// Shows what is stored now.
    void Refresh(const Settings& settings);

private:
    EffectSection* m_favorites;
    EffectSection* m_recent;
};

} // namespace orvane
