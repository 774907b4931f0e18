#include "services/chosen_effects.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr TextView section = u"Catalogue";
constexpr TextView favorites = u"Favorites";
constexpr TextView recent = u"Recent";
constexpr std::size_t mostRecent = 10;

const CatalogueRow* RowOfCommand(TextView name)
{
    const auto isOpenedBy = [&](const CatalogueRow& row) {
        return row.HasButton && FromUtf8(row.MenuCommand) == name;
    };
    const auto row = std::ranges::find_if(Catalogue(), isOpenedBy);
    return row == Catalogue().end() ? nullptr : &*row;
}

/// The effects of a stored list: names of menu commands with a blank between two.
EffectRows Load(const Settings& settings, TextView key)
{
    const Text stored = settings.Get(section, key, u"");
    EffectRows effects;
    for (TextView left = stored; !left.empty();) {
        const TextView name = left.substr(0, left.find(u' '));
        left.remove_prefix(std::min(name.size() + 1, left.size()));
        const CatalogueRow* row = RowOfCommand(name);
        if (row != nullptr && std::ranges::find(effects, row) == effects.end())
            effects.push_back(row);
    }
    return effects;
}

void Store(Settings& settings, TextView key, const EffectRows& effects)
{
    Text names;
    for (const CatalogueRow* row : effects)
        names += Join({names.empty() ? u"" : u" ", FromUtf8(row->MenuCommand)});
    settings.Put(section, key, names);
}

} // namespace

EffectRows FavoriteEffects(const Settings& settings)
{
    return Load(settings, favorites);
}

void ToggleFavorite(Settings& settings, const CatalogueRow& effect)
{
    EffectRows effects = FavoriteEffects(settings);
    if (std::erase(effects, &effect) == 0)
        effects.push_back(&effect);
    Store(settings, favorites, effects);
}

EffectRows RecentEffects(const Settings& settings)
{
    EffectRows effects = Load(settings, recent);
    effects.resize(std::min(effects.size(), mostRecent));
    return effects;
}

void RememberEffect(Settings& settings, EffectKind effect)
{
    EffectRows effects = RecentEffects(settings);
    const CatalogueRow* row = RowOfCommand(FromUtf8(FindRow(effect)->MenuCommand));
    std::erase(effects, row);
    effects.insert(effects.begin(), row);
    effects.resize(std::min(effects.size(), mostRecent));
    Store(settings, recent, effects);
}

} // namespace orvane
