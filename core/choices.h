#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>
#include <utility>

namespace orvane {

namespace choices {

/// The numbers that are looked at: -1 for none, and the indexes of options.
inline constexpr int least = -1;
inline constexpr std::size_t count = 33;

/// The name of the enumerator with this value; empty where the enumeration has none.
template <class Choice, Choice value>
constexpr std::string_view NameOf()
{
    // The compilers write "value = Type::Name" for an enumerator and "value = (Type)9" for any
    // other value.
    constexpr std::string_view before = "value = ";
    std::string_view written = __PRETTY_FUNCTION__;
    written.remove_prefix(written.find(before) + before.size());
    if (written.starts_with('('))
        return {};
    written = written.substr(0, written.find_first_of(";,]"));
    return written.substr(written.rfind(':') + 1);
}

} // namespace choices

/// The names of the enumerators with the values from -1 on, each at its value plus 1; empty for
/// values that the enumeration does not have.
template <class Choice>
requires std::is_enum_v<Choice>
inline constexpr auto choiceNames = []<std::size_t... index>(std::index_sequence<index...>)
{
    return std::array{choices::NameOf<Choice, static_cast<Choice>(static_cast<int>(index) +
                                                                  choices::least)>()...};
}
(std::make_index_sequence<choices::count>());

/// Whether the enumeration has an enumerator with this number.
template <class Choice>
requires std::is_enum_v<Choice>
constexpr bool IsChoice(int number)
{
    const auto index = static_cast<std::size_t>(number - choices::least);
    return index < choices::count && !choiceNames<Choice>[index].empty();
}

} // namespace orvane
