#include "core/percents.h"

#include <charconv>
#include <string>

namespace orvane {

Text WithPercents(TextView fileName)
{
    constexpr TextView digits = u"0123456789ABCDEF";
    Text address;
    for (const char16_t c : fileName) {
        if (c > u' ' && TextView(u"\"#%:<>?\\^`{|}").find(c) == TextView::npos)
            address += c;
        else
            address.append({u'%', digits[(c >> 4) & 0xF], digits[c & 0xF]});
    }
    return address;
}

Text WithoutPercents(TextView address)
{
    const std::string bytes = ToUtf8(address);
    std::string plain;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        unsigned char byte = 0;
        const char* digits = bytes.data() + at + 1;
        if (bytes[at] == '%' && at + 2 < bytes.size() &&
            std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            plain += static_cast<char>(byte);
            at += 2;
        } else {
            plain += bytes[at];
        }
    }
    return FromUtf8(plain);
}

} // namespace orvane
