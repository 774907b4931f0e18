#include "effects/text/text_button.h"

#include <utility>

namespace orvane {

BlockContent ContentOf(const TextButton& button)
{
    return BlockRow{button.txtCaption, button.txtLink};
}

void TakeContent(TextButton& button, BlockContent content)
{
    auto link = std::get<BlockRow>(std::move(content));
    button.txtCaption = std::move(link.Words);
    button.txtLink = std::move(link.Link);
}

std::optional<Complaint> CheckPage(const TextButton& button, int page)
{
    if (page == 0 && TidyLine(button.txtCaption).empty())
        return Complaint{u"Please enter the text of the button.", "txtCaption"};
    if (page == 0 && OneLine(button.txtLink).empty())
        return Complaint{u"Please enter the Web page that the button leads to.", "txtLink"};
    return CheckNumbers(button, page);
}

void Tidy(TextButton& button)
{
    TidyBlock(button);
    button.txtCaption = TidyLine(button.txtCaption);
    button.txtLink = MendedLink(button.txtLink);
}

} // namespace orvane
