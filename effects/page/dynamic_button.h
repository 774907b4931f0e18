#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "core/surroundings.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Dynamic Button window; the defaults are those of a fresh window.
struct DynamicButton
{
    static constexpr std::array Kinds = {EffectKind::DynamicButton};
    static constexpr int Pages = 3;

    Text DefaultImage; ///< a file name, as are the other images and the sounds
    Text OverImage;
    Text OverSound;
    Text ClickImage;
    Text ClickSound;
    Text LinkUrl;
    Text LinkTarget;
    RequiredFiles Required; ///< what Browse gave, in slots 0 to 4 for the five files in this order
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
}

/// The complaint that keeps the author on a page, counted from 0, or nothing.
std::optional<Complaint> CheckPage(const DynamicButton& button, int page);

/// Puts "http://" in front of a link that begins with "www.".
void Tidy(DynamicButton& button);

/// The hints at quotes in the names of images and sounds, which the scripts of the button take.
std::vector<Hint> HintsOf(const DynamicButton& button);

/// The button's page text. The id of the element that plays its sounds is made of the time, so that
/// two buttons of one page are unlikely to have the same. Expects a button that passes CheckPage()
/// and went through Tidy().
EffectPayload Generate(const DynamicButton& button, const Surroundings& surroundings);

} // namespace orvane
