#include "program/cli_json.h"

namespace orvane {

std::string JsonText(TextView text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string json = "\"";
    for (const char sign : ToUtf8(text)) {
        const auto code = static_cast<unsigned char>(sign);
        if (sign == '"' || sign == '\\')
            json += '\\';
        if (code < 0x20)
            (json += "\\u00") += {digits[code >> 4], digits[code & 15]};
        else
            json += sign;
    }
    return json + '"';
}

std::string JsonObject(std::initializer_list<std::pair<std::string_view, std::string>> members)
{
    std::string json = "{";
    for (const auto& [name, value] : members) {
        if (json.size() > 1)
            json += ", ";
        json.append("\"").append(name).append("\": ").append(value);
    }
    return json + '}';
}

std::string JsonArray(const std::vector<std::string>& elements)
{
    std::string json = "[";
    for (const std::string& element : elements) {
        if (json.size() > 1)
            json += ", ";
        json += element;
    }
    return json + ']';
}

} // namespace orvane
