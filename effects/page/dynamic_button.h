#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"

#include <optional>

namespace orvane {

/// What the author enters on the Dynamic Button window; the defaults are those of a fresh window.
struct DynamicButton
{
    Text DefaultImage; ///< file names, as the others
    Text OverImage;
    Text OverSound;
    Text ClickImage;
    Text ClickSound;
    Text LinkUrl;
    Text LinkTarget;
    RequiredFiles Required; ///< what Browse gave, at the slots of the five file fields
    bool operator==(const DynamicButton&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<DynamicButton> Button, class Field>
void ForEachField(Button& button, Field&& field)
{
    field("DefaultImage", button.DefaultImage);
    field("OverImage", button.OverImage);
    field("OverSound", button.OverSound);
    field("ClickImage", button.ClickImage);
    field("ClickSound", button.ClickSound);
    field("LinkUrl", button.LinkUrl);
    field("LinkTarget", button.LinkTarget);
    field("Required", button.Required);
}

/// What Next refuses on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const DynamicButton& button, int page);

/// Completes the link's address.
void Tidy(DynamicButton& button);

/// The name of the sound's element in the page, from the clock in days, so that two buttons of one
/// page have different names.
Text SoundElement(double clock);

/// The button's page text, with its sounds in the element of that name, as SoundElement() gives it.
/// Expects a button that passes CheckPage() and went through Tidy().
EffectPayload Generate(const DynamicButton& button, TextView soundElement = u"bgs");

} // namespace orvane
