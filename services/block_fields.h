#pragma once

#include "core/payload.h"
#include "services/block_values.h"
#include "services/hints.h"

#include <array>
#include <map>
#include <optional>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

namespace orvane {

// A block effect is its parameters, its checks, the shape of its content and one script. It is an
// effect as core/effect.h has it, and beside that it has
//
//   Block         its kind with the number of its format, such as u"scroller-1"
//   PageStarts    the first field of each of its wizard's pages
//   Others        the attributes that its root has beside its own, as the author wrote them
//
// and, where it differs from what is said here,
//
//   Seen               the pictures that are seen without the script; without it, all
//   ColorPairs         the colours of texts with those of their grounds; without it, none
//   Tidy(effect), Generate(effect)   as below
//   SoundsOf(effect)   its sounds that are no content; without it, none
//   ContentOf(effect)  its content; without it, the field that is a ContentField
//   TakeContent(effect, content)   sets the fields of the content; without it, that field
//   BlockKindOf(effect), Faces()     its kind of block, where its fields tell that, and a fresh
//                                    effect of each

/// Calls `field` with the name and the value of each field that is an attribute, and with its value
/// in a fresh window.
template <class Effect, class Field>
void ForEachAttribute(Effect& effect, Field&& field)
{
    const std::remove_const_t<Effect> freshEffect;
    std::vector<Text> fresh;
    ForEachField(freshEffect, [&](const FieldName&, const auto& value) {
        if constexpr (AttributeValue<std::remove_cvref_t<decltype(value)>>)
            fresh.push_back(AttributeText(value));
    });
    auto next = fresh.begin();
    ForEachField(effect, [&](const FieldName& name, auto& value) {
        if constexpr (AttributeValue<std::remove_cvref_t<decltype(value)>>) {
            if (!name.IsContent && !name.IsSecret)
                field(name, value, *next);
            ++next;
        }
    });
}

/// The content of a block effect, unless it has a function of its own.
template <class Effect>
BlockContent ContentOf(const Effect& effect)
{
    BlockContent content;
    ForEachField(effect, [&](const FieldName& name, const auto& value) {
        if constexpr (ContentValue<std::remove_cvref_t<decltype(value)>>)
            if (name.IsContent)
                content = value;
    });
    return content;
}

/// Sets the field that holds the content of a block effect, unless it has a function of its own.
template <class Effect>
void TakeContent(Effect& effect, BlockContent content)
{
    ForEachField(effect, [&](const FieldName& name, auto& value) {
        using Value = std::remove_cvref_t<decltype(value)>;
        if constexpr (ContentValue<Value>)
            if (Value* given = std::get_if<Value>(&content); given && name.IsContent)
                value = std::move(*given);
    });
}

/// The complaint about a number on one page of the wizard, counted from 0, or nothing.
template <class Effect>
std::optional<Complaint> CheckNumbers(const Effect& effect, int page)
{
    const std::span<const ControlName> starts(Effect::PageStarts);
    std::size_t pagesBegun = 0;
    std::optional<Complaint> complaint;
    ForEachField(effect, [&](const FieldName& name, const auto& value) {
        if (pagesBegun < starts.size() && starts[pagesBegun] == name.Name)
            ++pagesBegun;
        if constexpr (AttributeValue<std::remove_cvref_t<decltype(value)>>)
            if (!complaint && name.Bounds && !name.IsColor &&
                pagesBegun == static_cast<std::size_t>(page) + 1)
                complaint = CheckNumber(name, AttributeText(value));
    });
    return complaint;
}

/// Mends each field of a block effect.
template <class Effect>
void TidyBlock(Effect& effect)
{
    const Effect freshEffect;
    std::vector<Text> fresh;
    ForEachField(freshEffect, [&](const FieldName&, const auto& value) {
        if constexpr (AttributeValue<std::remove_cvref_t<decltype(value)>>)
            fresh.push_back(AttributeText(value));
        else
            fresh.emplace_back();
    });
    auto next = fresh.begin();
    ForEachField(effect,
                 [&](const FieldName& name, auto& value) { MendField(name, value, *next++); });
}

/// The kind of an effect's block, unless it has a function of its own.
template <class Effect>
TextView BlockKindOf(const Effect&)
{
    return Effect::Block;
}

/// The block of an effect.
template <class Effect>
Block BlockOf(const Effect& effect)
{
    Block block{.Kind = Text(BlockKindOf(effect)), .Content = ContentOf(effect)};
    ForEachAttribute(effect, [&](const FieldName& name, const auto& value, const Text& fresh) {
        AddAttribute(block.Attributes, name, AttributeText(value), fresh);
    });
    block.Attributes.insert(block.Attributes.end(), effect.Others.begin(), effect.Others.end());
    if constexpr (requires { Effect::Seen; })
        block.Seen = Effect::Seen;
    return block;
}

/// An effect that is a block.
template <class Effect>
concept BlockEffect = requires
{
    Effect::Block;
};

/// Mends each field of a block effect, unless it has a function of its own.
template <BlockEffect Effect>
void Tidy(Effect& effect)
{
    TidyBlock(effect);
}

/// A fresh effect of each kind of block that it can be.
template <class Effect>
auto FacesOf()
{
    if constexpr (requires { Effect::Faces(); })
        return Effect::Faces();
    else
        return std::array<Effect, 1>();
}

/// A text's colour and that of its ground, by the names of their fields.
struct ColorPair
{
    ControlName Color;
    ControlName Ground;
};

/// Hints at numbers beyond a bound that keeps the page calm, and at pairs of colours that are hard
/// to read.
template <BlockEffect Effect>
HintList BlockHints(const Effect& effect)
{
    HintList hints;
    std::map<ControlName, Text> colors;
    ForEachField(effect, [&](const FieldName& name, const auto& value) {
        if constexpr (AttributeValue<std::remove_cvref_t<decltype(value)>>) {
            if (const auto words = CalmWords(name, AttributeText(value)))
                hints.Say(name.Name, *words);
            if (name.IsColor)
                colors[name.Name] = AttributeText(value);
        }
    });
    if constexpr (requires { Effect::ColorPairs; })
        for (const ColorPair& pair : Effect::ColorPairs)
            hints.Contrast(pair.Color, colors[pair.Color], colors[pair.Ground]);
    return hints;
}

/// The hints on a block effect, unless it has a function of its own.
template <BlockEffect Effect>
std::vector<Hint> HintsOf(const Effect& effect)
{
    return BlockHints(effect).Hints();
}

/// The effect that a block shows, tidied; what the block does not tell is that of `effect`.
template <class Effect>
Effect EffectOf(Block block, Effect effect = {})
{
    ForEachAttribute(effect, [&](const FieldName& name, auto& value, const Text&) {
        if (const auto attribute = TakeAttribute(block.Attributes, name))
            SetFromAttribute(name, value, *attribute);
    });
    effect.Others = std::move(block.Attributes);
    TakeContent(effect, std::move(block.Content));
    Tidy(effect);
    return effect;
}

/// The sounds of a block effect that are no content, unless it has a function of its own.
template <BlockEffect Effect>
std::vector<BlockSound> SoundsOf(const Effect&)
{
    return {};
}

/// What a block effect puts into the BODY, with the files that it names, unless it has a function
/// of its own. Expects one without a complaint that was tidied.
template <BlockEffect Effect>
EffectPayload Generate(const Effect& effect)
{
    const Block block = BlockOf(effect);
    return {
        .Kind = Effect::Kinds.front(),
        .BODYHTML = WriteBlock(block),
        .Required = FilesOf(block.Content, SoundsOf(effect)),
        .IsBlock = true,
    };
}

} // namespace orvane
