#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/payload.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// A type of box: its item in the list, and what it allows.
struct AlertType
{
    TextView Item;
    TextView Description;
};

/// The types in the order of their list.
inline constexpr std::array<AlertType, 3> alertTypes = {{
    {u"Simple Alert box", u"Allows you to alert the user with a message in the pop-up box"},
    {u"OK/Cancel box", u"Allows the user to click 'OK' or 'CANCEL' in the pop-up box"},
    {u"Input Prompt box", u"Allows the user to input text into the pop-up box"},
}};

/// What the author enters on the Popup Alert window; the defaults are those of a fresh window.
struct PopupAlert
{
    static constexpr std::array Kinds = {EffectKind::PopupAlert};
    static constexpr int Pages = 1;

    Text cmboAlertType = Text(alertTypes[0].Item); ///< empty when none is chosen
    Text txtAlertText;
    bool operator==(const PopupAlert&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<PopupAlert> Alert, class Field>
void ForEachField(Alert& alert, Field&& field)
{
    field("cmboAlertType", alert.cmboAlertType);
    field("txtAlertText", alert.txtAlertText);
}

/// The description of the chosen type.
Look LookOf(const PopupAlert& alert);

/// The complaint of the first check that fails, in the order of the fields, or nothing when the
/// wizard may finish.
std::optional<Complaint> Check(const PopupAlert& alert);

/// Replaces the line ends of the text by "\n", as a script's string needs them.
void Tidy(PopupAlert& alert);

/// The hint at a quotation mark, which ends the text in the script.
std::vector<Hint> HintsOf(const PopupAlert& alert);

/// The box's page text. Expects an alert that passes Check() and went through Tidy().
EffectPayload Generate(const PopupAlert& alert);

} // namespace orvane
