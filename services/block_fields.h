#pragma once

#include "core/block.h"
#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"

#include <concepts>
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
//   Tidy(effect), Generate(effect)   as below
//   ContentOf(effect)  its content; without it, the field that is a ContentField
//   TakeContent(effect, content)   sets the fields of the content; without it, that field

/// The name of the attribute of a field: the control's without its prefix, in small letters, with a
/// hyphen before each inner capital, behind "data-".
Text AttributeName(ControlName control);

/// What a number field holds for a text: the number at its start, as a browser's script reads it,
/// within the bounds; `fresh` where there is none.
Text MendedNumber(TextView text, const NumberBounds& bounds, TextView fresh);

/// The complaint about a text that is neither empty nor a number within the field's bounds, or
/// nothing.
std::optional<Complaint> CheckNumber(const FieldName& field, TextView text);

/// The complaint about a message without words, or nothing.
std::optional<Complaint> Check(const BlockRow& row);

/// Mends a message as a wizard does: its words in order, its link with what it begins with.
void Tidy(BlockRow& row);

/// The complaint about a list without messages, or nothing.
std::optional<Complaint> CheckRows(const BlockRows& rows, ControlName control);

/// The complaint about no pictures, more than `most`, or two files of one name, or nothing.
std::optional<Complaint> CheckPictures(const BlockPictures& pictures, ControlName control,
                                       std::size_t most);

/// Whether a colour may stand in a style: nothing in it can end the declaration.
bool IsStyleColor(TextView color);

/// Mends the value of a field as a wizard does when it ends: texts are put in order, numbers, words
/// and colours that it cannot hold give way to `fresh`, its value in a fresh window, links that
/// begin with "www." get "http://" in front, rows and pictures that show nothing go.
void MendField(const FieldName& field, Text& value, const Text& fresh);
void MendField(const FieldName& field, int& value, const Text& fresh);
void MendField(const FieldName& field, BlockRows& rows, const Text& fresh);
void MendField(const FieldName& field, BlockPictures& pictures, const Text& fresh);
inline void MendField(const FieldName&, bool&, const Text&) {}
inline void MendField(const FieldName&, BlockAttributes&, const Text&) {}

/// A link as a wizard mends it.
Text MendedLink(TextView link);

/// Adds the attribute of a field, unless the script takes its value anyway.
void AddAttribute(BlockAttributes& attributes, const FieldName& field, const Text& value,
                  const Text& fresh);

/// Removes the attribute of a field from a block's and gives its value; nothing where it has none.
std::optional<Text> TakeAttribute(BlockAttributes& attributes, const FieldName& field);

/// Sets a field from its attribute as the block's script understands it.
void SetFromAttribute(const FieldName& field, Text& value, TextView attribute);
void SetFromAttribute(const FieldName& field, bool& value, TextView attribute);
void SetFromAttribute(const FieldName& field, int& value, TextView attribute);

/// The types of fields that an attribute can hold, and of those that a block can show.
template <class Value>
concept AttributeValue =
    std::same_as<Value, Text> || std::same_as<Value, bool> || std::same_as<Value, int>;
template <class Value>
concept ContentValue = std::same_as<Value, Text> || std::same_as<Value, BlockRows> ||
    std::same_as<Value, BlockPictures>;

/// Calls `field` with the name and the value of each field that is an attribute, and with its value
/// in a fresh window.
template <class Effect, class Field>
void ForEachAttribute(Effect& effect, Field&& field)
{
    const std::remove_const_t<Effect> freshEffect;
    std::vector<Text> fresh;
    ForEachField(freshEffect, [&](const FieldName&, const auto& value) {
        if constexpr (AttributeValue<std::remove_cvref_t<decltype(value)>>)
            fresh.push_back(TextsOf(value).front());
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
            if (!complaint && name.Bounds && pagesBegun == static_cast<std::size_t>(page) + 1)
                complaint = CheckNumber(name, TextsOf(value).front());
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
            fresh.push_back(TextsOf(value).front());
        else
            fresh.emplace_back();
    });
    auto next = fresh.begin();
    ForEachField(effect,
                 [&](const FieldName& name, auto& value) { MendField(name, value, *next++); });
}

/// The block of an effect.
template <class Effect>
Block BlockOf(const Effect& effect)
{
    Block block{.Kind = Text(Effect::Block), .Content = ContentOf(effect)};
    ForEachAttribute(effect, [&](const FieldName& name, const auto& value, const Text& fresh) {
        AddAttribute(block.Attributes, name, TextsOf(value).front(), fresh);
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

/// The effect that a block shows, tidied.
template <class Effect>
Effect EffectOf(Block block)
{
    Effect effect;
    ForEachAttribute(effect, [&](const FieldName& name, auto& value, const Text&) {
        if (const auto attribute = TakeAttribute(block.Attributes, name))
            SetFromAttribute(name, value, *attribute);
    });
    effect.Others = std::move(block.Attributes);
    TakeContent(effect, std::move(block.Content));
    Tidy(effect);
    return effect;
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
        .Required = FilesOf(block.Content),
        .IsBlock = true,
    };
}

} // namespace orvane
