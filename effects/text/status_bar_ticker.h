#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Status Bar Ticker window; the defaults are those of a fresh
/// window.
struct StatusBarTicker
{
    static constexpr std::array Kinds = {EffectKind::StatusBarTicker};
    static constexpr int Pages = 1;

    Text txtStatusBarText;
    bool operator==(const StatusBarTicker&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<StatusBarTicker> Ticker, class Field>
void ForEachField(Ticker& ticker, Field&& field)
{
    field("txtStatusBarText", ticker.txtStatusBarText);
}

/// The complaint about an empty text, or nothing when the wizard may finish.
std::optional<Complaint> Check(const StatusBarTicker& ticker);

/// The hint at a quotation mark, which ends the text in the script.
std::vector<Hint> HintsOf(const StatusBarTicker& ticker);

/// The ticker's page text. Expects a ticker that passes Check().
EffectPayload Generate(const StatusBarTicker& ticker);

/// Fills the text from a pasted script; with nothing when the script has no text of a ticker.
void ReadTag(StatusBarTicker& ticker, const PastedTag& tag);

} // namespace orvane
