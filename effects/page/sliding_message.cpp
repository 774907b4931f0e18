#include "effects/page/sliding_message.h"

#include <utility>

namespace orvane {

BlockContent ContentOf(const SlidingMessage& message)
{
    return LinkedParagraphs{message.txtMessage.Words, message.txtLink};
}

void TakeContent(SlidingMessage& message, BlockContent content)
{
    auto taken = std::get<LinkedParagraphs>(std::move(content));
    message.txtMessage.Words = std::move(taken.Words);
    message.txtLink = std::move(taken.Link);
}

std::vector<BlockSound> SoundsOf(const SlidingMessage& message)
{
    return {{message.txtSound, message.SoundSource}};
}

std::optional<Complaint> CheckPage(const SlidingMessage& message, int page)
{
    if (page == 0 && TidyParagraphs(message.txtMessage.Words).empty())
        return Complaint{u"Please enter the message.", "txtMessage"};
    if (auto complaint = CheckNumbers(message, page); complaint || page != 2)
        return complaint;
    // What the page shows would be seen through the window.
    if (auto complaint = CheckColor(message.HeadColor, u"the title bar", "cmdHeadColor"))
        return complaint;
    return CheckColor(message.PaperColor, u"the window", "cmdPaperColor");
}

void Tidy(SlidingMessage& message)
{
    TidyBlock(message);
    message.txtLink = MendedLink(message.txtLink);
}

} // namespace orvane
