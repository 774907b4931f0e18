#include "core/letter_case.h"

namespace orvane {

namespace {

/// Latin Extended-A holds its letters as neighbouring pairs; in two stretches the upper one is odd.
constexpr bool IsPairWithOddUpper(char16_t c)
{
    return (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
}

constexpr bool IsPairWithEvenUpper(char16_t c)
{
    return (c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177);
}

} // namespace

char16_t ToLower(char16_t c)
{
    const auto moved = [&](int distance) { return static_cast<char16_t>(c + distance); };
    if ((c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return moved(0x20);
    if (c < 0x100)
        return c;
    if ((IsPairWithEvenUpper(c) && c % 2 == 0) || (IsPairWithOddUpper(c) && c % 2 == 1))
        return moved(1);
    if (c == 0x178)
        return 0xFF;
    if ((c >= 0x391 && c <= 0x3AB && c != 0x3A2) || (c >= 0x410 && c <= 0x42F))
        return moved(0x20);
    if (c >= 0x400 && c <= 0x40F)
        return moved(0x50);
    return c;
}

char16_t ToUpper(char16_t c)
{
    const auto moved = [&](int distance) { return static_cast<char16_t>(c + distance); };
    if ((c >= u'a' && c <= u'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7))
        return moved(-0x20);
    if (c < 0xFF)
        return c;
    if (c == 0xFF)
        return 0x178;
    if ((IsPairWithEvenUpper(c) && c % 2 == 1) || (IsPairWithOddUpper(c) && c % 2 == 0))
        return moved(-1);
    if ((c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) || (c >= 0x430 && c <= 0x44F))
        return moved(-0x20);
    if (c >= 0x450 && c <= 0x45F)
        return moved(-0x50);
    return c;
}

} // namespace orvane
