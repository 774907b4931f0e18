#pragma once

#include "core/text.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orvane {

/// An option of a command.
struct CliOption
{
    std::string_view Name; ///< with its hyphens
    bool TakesValue = false;
};

/// What stands behind a command on its line.
class CliRequest
{
public:
    /// Reads the words by these options, which may stand anywhere; "--name=value"
    /// is as good as two words, and behind "--" none is an option. Words that ask
    /// for another option, or lack a value, give what is wrong with them.
    static std::variant<CliRequest, std::string> Read(std::span<const std::string> words,
                                                      std::span<const CliOption> options);

    /// The words that are no options.
    const std::vector<Text>& Names() const { return m_names; }

    bool Has(std::string_view option) const { return m_options.contains(option); }

    /// All values that were given to the option, in their order.
    std::vector<Text> Values(std::string_view option) const;

    /// The last one; nothing when there is none.
    std::optional<Text> Value(std::string_view option) const;

private:
    std::vector<Text> m_names;
    std::map<std::string, std::vector<Text>, std::less<>> m_options;
};

} // namespace orvane
