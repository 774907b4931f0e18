#pragma once

#include "core/complaint.h"
#include "services/hints.h"
#include "services/image_list.h"

#include <array>
#include <optional>
#include <span>

namespace orvane {

/// The directions of a transition; the first character stands in the tag.
inline constexpr std::array<TextView, 9> TransitionDirections = {
    u"1-Northwest corner", u"2-North edge",       u"3-Northeast corner",
    u"4-East edge",        u"5-Southeast corner", u"6-South edge",
    u"7-Southwest corner", u"8-West edge",        u"r-Random location"};

/// A transition that the author can choose.
struct Transition
{
    TextView Name;
    std::span<const TextView> Directions; ///< empty: the direction box is disabled
    TextView DirectionLabel;
    TextView Description;
};

/// All transitions, in the order of their box.
std::span<const Transition> Transitions();

/// The transition of that name, or null.
const Transition* FindTransition(TextView name);

/// What the direction box and the two labels show for a transition.
struct DirectionChoice
{
    std::span<const TextView> Items;
    bool IsEnabled = true;
    TextView Label;
    TextView Description;
};

/// What stands in the fields of the properties window.
struct ImageProperties
{
    Text Pause; ///< milliseconds; -1 waits for a click, -2 for the mouse
    Text Sound;
    Text URL;
    Text Transition;
    Text Direction;
    bool operator==(const ImageProperties&) const = default;
};

/// The fields for a row of the list.
ImageProperties PropertiesOf(const ImageRow& row);

/// What the window shows once this transition is chosen; nothing for a text that is not the name of
/// one.
std::optional<DirectionChoice> ChoiceOf(TextView transition);

/// What the window shows when it opens with this row; nothing, so that all stays as it is, for a
/// shutter and for a transition without brackets. Scrolling has no random location there.
std::optional<DirectionChoice> OpeningChoice(const ImageRow& row);

/// The complaint about a pause below -2, or nothing when the properties can be taken.
std::optional<Complaint> Check(const ImageProperties& properties);

/// The hint at a pause that is no number.
std::vector<Hint> HintsOf(const ImageProperties& properties);

/// The transition as it stands in a row, such as "slidein(3)"; empty when none is chosen.
Text TransitionValue(TextView transition, TextView direction);

/// The row with these properties and its own image. An empty pause becomes 100, and an address that
/// begins with "www." gets "http://". Expects properties that pass Check().
ImageRow WithProperties(const ImageRow& row, const ImageProperties& properties);

} // namespace orvane
