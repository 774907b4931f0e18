#include "program/cli_request.h"

#include <algorithm>

namespace orvane {

std::variant<CliRequest, std::string> CliRequest::Read(std::span<const std::string> words,
                                                       std::span<const CliOption> options)
{
    CliRequest request;
    bool areOptionsOver = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (areOptionsOver || !word.starts_with('-')) {
            request.m_names.push_back(FromUtf8(word));
            continue;
        }
        if (word == "--") {
            areOptionsOver = true;
            continue;
        }
        const std::size_t sign = word.find('=');
        const std::string name = word.substr(0, sign);
        const auto option = std::ranges::find(options, name, &CliOption::Name);
        if (option == options.end())
            return "there is no option " + name + " here";
        auto& values = request.m_options[name];
        if (!option->TakesValue) {
            if (sign != std::string::npos)
                return "the option " + name + " takes no value";
        } else if (sign != std::string::npos) {
            values.push_back(FromUtf8(word.substr(sign + 1)));
        } else if (++i < words.size()) {
            values.push_back(FromUtf8(words[i]));
        } else {
            return "the option " + name + " lacks its value";
        }
    }
    return request;
}

std::vector<Text> CliRequest::Values(std::string_view option) const
{
    const auto found = m_options.find(option);
    return found == m_options.end() ? std::vector<Text>() : found->second;
}

std::optional<Text> CliRequest::Value(std::string_view option) const
{
    const auto found = m_options.find(option);
    if (found == m_options.end() || found->second.empty())
        return std::nullopt;
    return found->second.back();
}

} // namespace orvane
