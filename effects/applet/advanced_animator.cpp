#include "effects/applet/advanced_animator.h"

#include "core/numbers.h"
#include "effects/applet/applet_tag_builder.h"
#include "reedit/applet_values.h"

namespace orvane {

namespace {

constexpr TextView transitionList =
    u"shutter|slidein(1-8)|slideout(1-8)|scroll(2:4:6:8)|expand(1-9)|overwrite|shrink(1-9)";

/// The rows that a tag fills while its quotes are kept.
constexpr std::size_t rowsWithQuotes = 31;

/// Projects write "null" where nothing is set.
bool IsSet(TextView value)
{
    return !value.empty() && value != u"null";
}

/// One line for each row, with `otherwise` where nothing is set.
void AddEach(AppletTagBuilder& tag, TextView name, const std::vector<ImageRow>& rows,
             Text ImageRow::*field, TextView otherwise)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const TextView value = rows[i].*field;
        tag.NumberedParam(name, i, IsSet(value) ? Trim(value) : otherwise);
    }
}

/// One line for each row where something is set.
void AddSet(AppletTagBuilder& tag, TextView name, const std::vector<ImageRow>& rows,
            Text ImageRow::*field)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (const TextView value = rows[i].*field; IsSet(value))
            tag.NumberedParam(name, i, Trim(value));
}

std::vector<ImageRow> ReadRows(const PastedTag& tag)
{
    std::vector<ImageRow> rows;
    for (std::size_t i = 0; i < rowsWithQuotes || tag.Reading == Quotes::TakenOff; ++i) {
        const auto read = [&](TextView name) {
            return TagValue(tag, Join({name, u".", NumberToText(i), u" VALUE="}));
        };
        ImageRow row{.FileName = read(u"IMAGE")};
        if (row.FileName.empty())
            break;
        row.Sound = read(u"SOUND");
        row.URL = read(u"URL");
        row.Pause = read(u"PAUSE");
        row.Transition = read(u"TRANSITION.TYPE");
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

std::optional<Complaint> Check(const AdvancedAnimator& animator)
{
    if (animator.Rows.size() < 2)
        return Complaint{u"You must insert more than one image into the Animation Image List.",
                         "List1", Tone::Exclamation};
    if (animator.AnimationWidth.empty() || animator.AnimationHeight.empty())
        return Complaint{u"Animation width and height properties are required.  Please enter them.",
                         "Text20"};
    if (!(Val(animator.AnimationWidth) > 0) || !(Val(animator.AnimationHeight) > 0))
        return Complaint{u"Animation width and height properties must be greater than 0.",
                         "Text20"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const AdvancedAnimator& animator)
{
    return HintList()
        .Number("Text20", animator.AnimationWidth)
        .Number("Text21", animator.AnimationHeight)
        .Number("Combo3", CountOf(animator.LoopCount))
        .Hints();
}

EffectPayload Generate(const AdvancedAnimator& animator)
{
    AppletTagBuilder tag(u"Animate1.class", {{u"WIDTH", Trim(animator.AnimationWidth)},
                                             {u"HEIGHT", Trim(animator.AnimationHeight)}});
    tag.Origin(u"COPYRIGHT", u"DOCUMENTATION");
    tag.Param(u"SOUND.ACTIVATION.0", u"auto");
    tag.Param(u"TRANSITION.LIST", transitionList);
    tag.Param(u"TRANSITION.STEP.0", u"30");
    for (std::size_t i = 0; i < animator.Rows.size(); ++i)
        tag.NumberedParam(u"IMAGE", i, animator.Rows[i].FileName);
    AddEach(tag, u"PAUSE", animator.Rows, &ImageRow::Pause, u"100");
    AddSet(tag, u"SOUND", animator.Rows, &ImageRow::Sound);
    AddSet(tag, u"TRANSITION.TYPE", animator.Rows, &ImageRow::Transition);
    AddEach(tag, u"URL", animator.Rows, &ImageRow::URL, u"null");
    if (!animator.LoopCount.empty())
        tag.Param(u"CYCLES", CountOf(animator.LoopCount));
    if (!animator.BackgroundColor.empty())
        tag.Param(u"BGCOLOR.0", Trim(animator.BackgroundColor));
    return {
        .Kind = EffectKind::AdvancedAnimator,
        .BODYHTML = tag.Tag(),
        .Required = animator.Required,
        .SupportFiles = {u"Animate1.class", u"CoolTool3.class"},
    };
}

void ReadTag(AdvancedAnimator& animator, const PastedTag& tag)
{
    // The earlier applet joins its images in one line, which no field takes any more.
    if (tag.AppletText != u"AnimateP") {
        animator.Rows = ReadRows(tag);
        animator.BackgroundColor = TagValue(tag, u"BGCOLOR.0 VALUE=");
    }
    animator.AnimationWidth = TagValue(tag, u"WIDTH=");
    animator.AnimationHeight = TagValue(tag, u"HEIGHT=");
    animator.LoopCount = TagValue(tag, u"CYCLES VALUE=");
}

} // namespace orvane
