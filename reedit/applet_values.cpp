#include "reedit/applet_values.h"

namespace orvane {

Text GetAppletValue(TextView pasted, TextView key)
{
    const Text bareKey = ReplaceAll(key, u"\"", u"");
    const std::size_t place = Find(pasted, bareKey);
    if (place == 0)
        return {};
    const std::size_t value = place + bareKey.size();
    // One further, so that the opening quote is stepped over; it stays part of the value, and the
    // wizards count on it.
    const std::size_t end = Find(pasted, u"\"", value + 1);
    if (end == 0)
        return {};
    return Text(Mid(pasted, value, end - value));
}

} // namespace orvane
