#include "effects/page/animation_wizard.h"

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
    if (animation.lstPictures.size() == 1)
        return Complaint{u"Please add a second picture to the list.", "lstPictures"};
    constexpr std::size_t most = std::tuple_size_v<decltype(RequiredFiles::RequiredFileNames)>;
    return CheckPictures(animation.lstPictures, "lstPictures", most);
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

} // namespace orvane
