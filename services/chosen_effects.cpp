#include "services/chosen_effects.h"

#include "core/setting_keys.h"

#include <algorithm>

namespace orvane {

namespace {

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
EffectRows Load(const Settings& settings, const SettingKey& key)
{
    const Text stored = settings.Get(key);
    EffectRows effects;
    for (TextView left = stored; !left.empty();) {
        const CatalogueRow* row = RowOfCommand(TakeUntil(left, u' '));
        if (row != nullptr && std::ranges::find(effects, row) == effects.end())
            effects.push_back(row);
    }
    return effects;
}

void Store(Settings& settings, const SettingKey& key, const EffectRows& effects)
{
    std::vector<Text> names;
    for (const CatalogueRow* row : effects)
        names.push_back(FromUtf8(row->MenuCommand));
    settings.Put(key, Listed(names, u" "));
}

} // namespace

EffectRows FavoriteEffects(const Settings& settings)
{
    return Load(settings, settingKeys::favorites);
}

void ToggleFavorite(Settings& settings, const CatalogueRow& effect)
{
    EffectRows effects = FavoriteEffects(settings);
    if (std::erase(effects, &effect) == 0)
        effects.push_back(&effect);
    Store(settings, settingKeys::favorites, effects);
}

EffectRows RecentEffects(const Settings& settings)
{
    EffectRows effects = Load(settings, settingKeys::recentEffects);
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
    Store(settings, settingKeys::recentEffects, effects);
}

} // namespace orvane
