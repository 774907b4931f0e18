#pragma once

#include "core/letter_case.h"
#include "core/utf8.h"

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace orvane {

/// A sequence of UTF-16 code units, which count as characters; all words of the program are such
/// texts.
using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView lineEnd = u"\r\n";

/// The position, counted from 1, of the first occurrence of `sought` in `text` that begins at
/// `from` (counted from 1 as well) or behind it; 0 when there is none or `from` is 0.
std::size_t Find(TextView text, TextView sought, std::size_t from = 1);

/// The same as Find(), with upper and lower case taken as equal.
std::size_t FindIgnoringCase(TextView text, TextView sought, std::size_t from = 1);

/// The position, counted from 1, of the last occurrence of `sought` in `text`; 0 when there is
/// none.
std::size_t FindLast(TextView text, TextView sought);

/// The first `count` characters of `text`, or all of it when it is shorter.
TextView Left(TextView text, std::size_t count);

/// The last `count` characters of `text`, or all of it when it is shorter.
TextView Right(TextView text, std::size_t count);

/// Up to `count` characters of `text` from position `from`, counted from 1; empty behind the end.
TextView Mid(TextView text, std::size_t from, std::size_t count = TextView::npos);

/// `text` without the blanks (0x20 alone) at both ends.
TextView Trim(TextView text);

/// `text` with every character in lower or upper case; its length stays the same.
Text ToLower(TextView text);
Text ToUpper(TextView text);

/// Whether one text equals, starts with or ends with the other, upper and lower case taken as
/// equal.
bool EqualIgnoringCase(TextView left, TextView right);
bool StartsWithIgnoringCase(TextView text, TextView start);
bool EndsWithIgnoringCase(TextView text, TextView end);

/// `text` with every exact occurrence of `old`, from left to right, replaced by `replacement`;
/// `text` itself when `old` is empty.
Text ReplaceAll(TextView text, TextView old, TextView replacement);

/// The joined pieces, in one allocation.
Text Join(std::initializer_list<TextView> pieces);

/// What stands in front of the first `sign`, or all of it; taken off `rest` with that sign.
TextView TakeUntil(TextView& rest, char16_t sign);

/// The texts, with `between` between each two.
Text Listed(std::span<const Text> texts, TextView between = u", ");

/// Each byte as one character from 0 to 255.
Text FromBytes(std::string_view bytes);

/// The bytes of a text that FromBytes() could have given; throws std::logic_error for a character
/// above 255.
std::string ToBytes(TextView text);

/// The same functions for bytes. Each byte counts as the character of its number, so that an
/// author's page is searched and edited as it lies on the disk, whatever its encoding.
std::size_t Find(std::string_view bytes, std::string_view sought, std::size_t from = 1);
std::size_t FindIgnoringCase(std::string_view bytes, std::string_view sought, std::size_t from = 1);
bool EqualIgnoringCase(std::string_view left, std::string_view right);
bool StartsWithIgnoringCase(std::string_view bytes, std::string_view start);
bool EndsWithIgnoringCase(std::string_view bytes, std::string_view end);
std::string ReplaceAll(std::string_view bytes, std::string_view old, std::string_view replacement);
std::string Join(std::initializer_list<std::string_view> pieces);
std::string_view TakeUntil(std::string_view& rest, char sign);

} // namespace orvane
