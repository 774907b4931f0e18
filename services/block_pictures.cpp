#include "services/block_pictures.h"

#include "core/percents.h"
#include "services/block_fields.h"

#include <algorithm>

namespace orvane {

BlockPicture PictureOf(const PickedImage& image)
{
    BlockPicture picture = PictureNamed(GetFileName(image.Path));
    picture.Source = image.Path;
    picture.Width = image.Size->Width;
    picture.Height = image.Size->Height;
    return picture;
}

BlockPicture PictureNamed(TextView fileName)
{
    BlockPicture picture;
    picture.Address = WithPercents(fileName);
    return picture;
}

std::vector<Hint> HintsOfLink(TextView description, TextView link)
{
    if (OneLine(link).empty() || !OneLine(description).empty())
        return {};
    return {{"txtLink", u"Without a description, those who do not see the picture learn nothing of "
                        u"the link."}};
}

std::vector<Hint> HintsOf(const BlockPicture& picture)
{
    return HintsOfLink(picture.Description, picture.Link);
}

void Tidy(BlockPicture& picture)
{
    picture.Address = OneLine(picture.Address);
    picture.Description = OneLine(picture.Description);
    picture.Link = MendedLink(picture.Link);
    picture.Width = std::max(picture.Width, 0);
    picture.Height = std::max(picture.Height, 0);
}

} // namespace orvane
