#include "effects/effects.h"

#include "core/draft.h"
#include "core/effect.h"
#include "reedit/block_reader.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace orvane {

namespace {

template <class Effect>
bool IsOfKind(EffectKind kind)
{
    return std::ranges::find(Effect::Kinds, kind) != Effect::Kinds.end();
}

/// The fresh parameters of the first type of the list that is made as this kind.
template <std::size_t index = 0>
std::optional<EffectParameters> FirstOfKind(EffectKind kind)
{
    if constexpr (index < std::variant_size_v<EffectParameters>) {
        using Effect = std::variant_alternative_t<index, EffectParameters>;
        return IsOfKind<Effect>(kind) ? EffectParameters(FreshOf<Effect>(kind))
                                      : FirstOfKind<index + 1>(kind);
    } else {
        return std::nullopt;
    }
}

} // namespace

std::optional<AnyEffect> AnyEffect::Fresh(EffectKind kind)
{
    auto parameters = FirstOfKind(kind);
    if (!parameters)
        return std::nullopt;
    return AnyEffect(*std::move(parameters), kind);
}

AnyEffect::AnyEffect(EffectParameters parameters)
    : m_parameters(std::move(parameters)),
      m_kind(std::visit(
          [](const auto& effect) { return std::decay_t<decltype(effect)>::Kinds.front(); },
          m_parameters))
{
}

std::vector<FieldFacts> AnyEffect::Fields() const
{
    return std::visit([](const auto& effect) { return FactsOf(effect); }, m_parameters);
}

void AnyEffect::ForEachSource(const std::function<void(Text&)>& source)
{
    std::visit([&](auto& effect) { orvane::ForEachSource(effect, source); }, m_parameters);
}

void AnyEffect::ReadDraft(TextView draft, Secrets secrets)
{
    std::visit([&](auto& effect) { orvane::ReadDraft(effect, draft, secrets); }, m_parameters);
}

bool AnyEffect::ReadBlock(TextView text)
{
    return std::visit(
        [&]<class Effect>(Effect& effect) {
            if constexpr (BlockEffect<Effect>)
                return orvane::ReadBlock(effect, text);
            else
                return false;
        },
        m_parameters);
}

Text AnyEffect::Draft() const
{
    return std::visit([](const auto& effect) { return WriteDraft(effect); }, m_parameters);
}

int AnyEffect::Pages() const
{
    return std::visit([](const auto& effect) { return std::decay_t<decltype(effect)>::Pages; },
                      m_parameters);
}

std::optional<Complaint> AnyEffect::Check() const
{
    return std::visit([](const auto& effect) { return FirstComplaint(effect); }, m_parameters);
}

void AnyEffect::Tidy()
{
    std::visit([](auto& effect) { TidyFields(effect); }, m_parameters);
}

EffectPayload AnyEffect::Generate(const Surroundings& surroundings) const
{
    return std::visit([&](const auto& effect) { return PayloadOf(effect, surroundings); },
                      m_parameters);
}

} // namespace orvane
