#include "effects/text/fading_message.h"

namespace orvane {

std::optional<Complaint> CheckPage(const FadingMessage& message, int page)
{
    return page == 0 ? CheckRows(message.lstMessages, "lstMessages") : CheckNumbers(message, page);
}

} // namespace orvane
