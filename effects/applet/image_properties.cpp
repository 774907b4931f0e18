#include "effects/applet/image_properties.h"

#include "core/numbers.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::span<const TextView> allDirections = TransitionDirections;
constexpr std::array<TextView, 5> scrollDirections = {
    TransitionDirections[1], TransitionDirections[3], TransitionDirections[5],
    TransitionDirections[7], TransitionDirections[8]};
constexpr std::array<TextView, 2> squishDirections = {TransitionDirections[1],
                                                      TransitionDirections[5]};

constexpr std::array<Transition, 9> transitions = {{
    {u"random",
     {},
     u"Direction:",
     u"This causes the special effect to randomly pick a transition."},
    {u"expand", allDirections, u"Expand from:",
     u"Causes the new image to start at a point and slowly 'grow' so that it covers the old "
     u"frame."},
    {u"overwrite",
     {},
     u"Direction:",
     u"This is the default transition which simply writes the new image right overtop the old "
     u"image."},
    {u"scroll", scrollDirections, u"Scroll In from:",
     u"Causes the new image to slide in slowly from a particular direction pushing the existing "
     u"picture out of the frame."},
    {u"shrink", allDirections, u"Shrink down to:",
     u"Causes the existing image to collapse to a point, revealing the new image."},
    {u"shutter",
     {},
     u"Direction:",
     u"Causes the border of the image frame to close over the old image completely then open up, "
     u"revealing the next image."},
    {u"slidein", allDirections, u"Slide In from:",
     u"Causes the new image to slide in slowly from a particular direction and cover the existing "
     u"image."},
    {u"slideout", allDirections, u"Slide Out to:",
     u"Causes the existing image to slide out slowly in a particular direction uncovering the new "
     u"image."},
    {u"squish", squishDirections, u"Squish to:",
     u"Causes the new image to 'squish' out the old image."},
}};

/// Of a value such as "slidein(3)": what the direction in its brackets takes up.
constexpr std::size_t directionSize = 3;

} // namespace

std::span<const Transition> Transitions()
{
    return transitions;
}

const Transition* FindTransition(TextView name)
{
    const auto found =
        std::find_if(transitions.begin(), transitions.end(),
                     [name](const Transition& transition) { return transition.Name == name; });
    return found == transitions.end() ? nullptr : &*found;
}

ImageProperties PropertiesOf(const ImageRow& row)
{
    ImageProperties properties{
        .Pause = row.Pause, .Sound = row.Sound, .URL = row.URL, .Transition = row.Transition};
    const TextView value = row.Transition;
    if (!value.ends_with(u')'))
        return properties;
    // Stays as it is: of "overwrite()" the cut takes a letter too many.
    properties.Transition = Left(value, value.size() - std::min(value.size(), directionSize));
    properties.Direction = Mid(Right(value, directionSize), 2, 1);
    return properties;
}

std::optional<DirectionChoice> ChoiceOf(TextView transition)
{
    const auto* chosen = FindTransition(transition);
    if (chosen == nullptr)
        return std::nullopt;
    return DirectionChoice{.Items = chosen->Directions,
                           .IsEnabled = !chosen->Directions.empty(),
                           .Label = chosen->DirectionLabel,
                           .Description = chosen->Description};
}

std::optional<DirectionChoice> OpeningChoice(const ImageRow& row)
{
    const TextView value = row.Transition;
    const Text transition = PropertiesOf(row).Transition;
    // Stays as it is: a shutter is not looked up when the window opens.
    if (!value.ends_with(u')') || transition == u"shutter")
        return std::nullopt;
    auto choice = ChoiceOf(transition);
    // Stays as it is: the random place is offered once scrolling is chosen, not before.
    if (choice && transition == u"scroll")
        choice->Items = choice->Items.first(choice->Items.size() - 1);
    return choice;
}

std::optional<Complaint> Check(const ImageProperties& properties)
{
    if (Val(properties.Pause) < -2)
        return Complaint{u"Enter a number greater than -3 for Pauses.\r\n"
                         u"Use -1 to pause until user clicks mouse on animation.\r\n"
                         u"Use -2 to pause until user moves mouse over animation.",
                         "Text1"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const ImageProperties& properties)
{
    return HintList().Number("Text1", properties.Pause).Hints();
}

Text TransitionValue(TextView transition, TextView direction)
{
    for (const TextView item : TransitionDirections)
        if (direction == item || direction == Left(item, 1))
            return Join({transition, u"(", Left(item, 1), u")"});
    if (transition == u"overwrite" || transition == u"random")
        return Join({transition, u"()"});
    if (transition.empty())
        return {};
    if (transition == u"shutter")
        return u"shutter(1)";
    return Join({transition, u"(r)"});
}

ImageRow WithProperties(const ImageRow& row, const ImageProperties& properties)
{
    const bool needsScheme = ToLower(Left(properties.URL, 4)) == u"www.";
    return {
        .FileName = row.FileName,
        .Pause = properties.Pause.empty() ? Text(u"100") : properties.Pause,
        .Transition = TransitionValue(properties.Transition, properties.Direction),
        .URL = Join({needsScheme ? u"http://" : u"", properties.URL}),
        .Sound = properties.Sound,
    };
}

} // namespace orvane
