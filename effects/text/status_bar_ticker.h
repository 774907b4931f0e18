#pragma once

#include "core/complaint.h"
#include "core/payload.h"

#include <optional>

namespace orvane {

/// What the author enters on the Status Bar Ticker window; the defaults are those of a fresh
/// window.
struct StatusBarTicker
{
    Text txtStatusBarText;
    bool operator==(const StatusBarTicker&) const = default;
};

/// The complaint about an empty text, or nothing when the wizard may finish.
std::optional<Complaint> Check(const StatusBarTicker& ticker);

/// The ticker's page text. Expects a ticker that passes Check().
EffectPayload Generate(const StatusBarTicker& ticker);

/// The ticker whose script an author pasted; its text is empty when the script holds none.
StatusBarTicker ReadStatusBarTicker(TextView pasted);

} // namespace orvane
