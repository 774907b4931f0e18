#include "effects/page/animation_wizard.h"

#include "core/numbers.h"
#include "reedit/applet_values.h"
#include "services/block_pictures.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane {

BlockContent ContentOf(const AnimationWizard& animation)
{
    BlockPictures pictures = animation.lstPictures;
    if (!pictures.empty()) {
        pictures.front().Description = animation.txtDescription;
        pictures.front().Link = animation.txtLink;
    }
    return pictures;
}

void TakeContent(AnimationWizard& animation, BlockContent content)
{
    animation.lstPictures = std::get<BlockPictures>(std::move(content));
    if (animation.lstPictures.empty())
        return;
    animation.txtDescription = animation.lstPictures.front().Description;
    animation.txtLink = animation.lstPictures.front().Link;
}

std::optional<Complaint> CheckPage(const AnimationWizard& animation, int page)
{
    if (page != 0)
        return CheckNumbers(animation, page);
    return CheckPictures(animation.lstPictures, "lstPictures", {.Least = 2});
}

std::vector<Hint> HintsOf(const AnimationWizard& animation)
{
    std::vector<Hint> hints = BlockHints(animation).Hints();
    std::ranges::copy(HintsOfLink(animation.txtDescription, animation.txtLink),
                      std::back_inserter(hints));
    return hints;
}

void Tidy(AnimationWizard& animation)
{
    TidyBlock(animation);
    animation.txtDescription = OneLine(animation.txtDescription);
    animation.txtLink = MendedLink(animation.txtLink);
    for (BlockPicture& picture : animation.lstPictures) {
        picture.Description.clear();
        picture.Link.clear();
    }
}

void ReadTag(AnimationWizard& animation, const PastedTag& pasted)
{
    const PastedTag tag = WithoutQuotes(pasted);
    const auto value = [&](TextView name) { return TagValue(tag, Join({name, u" VALUE="})); };
    animation = {};
    for (const Text& image : TagImages(tag))
        animation.lstPictures.push_back(PictureNamed(image));
    animation.cboTarget = value(u"TARGET.0");
    if (const Text link = value(u"URL.0"); link != u"null")
        animation.txtLink = link;
    // Less than nothing waits for a click or the mouse.
    if (const Text pause = value(u"PAUSE.0"); Val(pause) > 0)
        animation.txtMilliseconds = pause;
    animation.txtWidth = TagValue(tag, u"WIDTH=");
    animation.cboTimes = value(u"CYCLES");
    TidyBlock(animation);
}

} // namespace orvane
