#include "effects/page/animated_button.h"

#include "services/block_pictures.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane {

BlockContent ContentOf(const AnimatedButton& button)
{
    BlockButton content{button.lstPictures, button.lstOverPictures, button.lstPressedPictures};
    if (!content.AtRest.empty()) {
        content.AtRest.front().Description = button.txtDescription;
        content.AtRest.front().Link = button.txtLink;
    }
    return content;
}

void TakeContent(AnimatedButton& button, BlockContent content)
{
    auto taken = std::get<BlockButton>(std::move(content));
    if (!taken.AtRest.empty()) {
        button.txtDescription = taken.AtRest.front().Description;
        button.txtLink = taken.AtRest.front().Link;
    }
    button.lstPictures = std::move(taken.AtRest);
    button.lstOverPictures = std::move(taken.Over);
    button.lstPressedPictures = std::move(taken.Pressed);
}

std::vector<BlockSound> SoundsOf(const AnimatedButton& button)
{
    return {{button.txtPressSound, button.PressSoundSource}};
}

std::optional<Complaint> CheckPage(const AnimatedButton& button, int page)
{
    if (page == 3) {
        if (auto complaint = CheckNumbers(button, page))
            return complaint;
        if (OneLine(button.txtLink).empty())
            return Complaint{u"Please enter the Web page that the button leads to.", "txtLink"};
        return std::nullopt;
    }
    // A picture's name must not be that of another one on the pages before.
    BlockButton content{.AtRest = button.lstPictures};
    if (page > 0)
        content.Over = button.lstOverPictures;
    if (page > 1)
        content.Pressed = button.lstPressedPictures;
    return CheckPictures(PicturesOf(content), AnimatedButton::PageStarts[std::size_t(page)],
                         {.Most = AnimatedButton::MostPictures});
}

std::vector<Hint> HintsOf(const AnimatedButton& button)
{
    std::vector<Hint> hints = BlockHints(button).Hints();
    std::ranges::copy(HintsOfLink(button.txtDescription, button.txtLink),
                      std::back_inserter(hints));
    return hints;
}

void Tidy(AnimatedButton& button)
{
    TidyBlock(button);
    button.txtDescription = OneLine(button.txtDescription);
    button.txtLink = MendedLink(button.txtLink);
    for (BlockPictures* pictures :
         {&button.lstPictures, &button.lstOverPictures, &button.lstPressedPictures})
        for (BlockPicture& picture : *pictures) {
            picture.Description.clear();
            picture.Link.clear();
        }
}

} // namespace orvane
