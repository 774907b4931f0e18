#include "effects/effect_windows.h"

#include "effects/effects.h"

#include <algorithm>
#include <type_traits>

namespace orvane {

namespace {

constexpr std::size_t windowCount = std::tuple_size_v<EffectWindows>;
static_assert(windowCount == std::variant_size_v<EffectParameters>, "every effect has one window");

template <class Form>
std::unique_ptr<WizardForm> Make(EffectKind kind, Workbench& bench, QWidget* parent)
{
    if constexpr (std::is_constructible_v<Form, Workbench&, QWidget*, EffectKind>)
        return std::make_unique<Form>(bench, parent, kind);
    else
        return std::make_unique<Form>(bench, parent);
}

/// A window of the first type of the list whose effect is made as this kind.
template <std::size_t index = 0>
std::unique_ptr<WizardForm> MakeFirst(EffectKind kind, Workbench& bench, QWidget* parent)
{
    if constexpr (index < windowCount) {
        using Form = std::tuple_element_t<index, EffectWindows>;
        constexpr auto kinds = Form::EffectType::Kinds;
        return std::ranges::find(kinds, kind) != kinds.end()
                   ? Make<Form>(kind, bench, parent)
                   : MakeFirst<index + 1>(kind, bench, parent);
    } else {
        return nullptr;
    }
}

} // namespace

std::unique_ptr<WizardForm> MakeWizard(EffectKind kind, Workbench& bench, QWidget* parent)
{
    return MakeFirst(kind, bench, parent);
}

} // namespace orvane
