#include "effects/page/thought_bubbles.h"

#include "services/block_pictures.h"

#include <utility>

namespace orvane {

BlockContent ContentOf(const ThoughtBubbles& bubbles)
{
    BlockFigure figure{bubbles.Picture, {bubbles.txtBubble}};
    if (!bubbles.txtSecondBubble.empty())
        figure.Words.push_back(bubbles.txtSecondBubble);
    return figure;
}

void TakeContent(ThoughtBubbles& bubbles, BlockContent content)
{
    auto figure = std::get<BlockFigure>(std::move(content));
    figure.Words.resize(2);
    bubbles.Picture = std::move(figure.Picture);
    bubbles.txtBubble = std::move(figure.Words[0]);
    bubbles.txtSecondBubble = std::move(figure.Words[1]);
}

std::optional<Complaint> CheckPage(const ThoughtBubbles& bubbles, int page)
{
    if (page == 0 && OneLine(bubbles.Picture.Address).empty())
        return Complaint{u"Please choose a picture.", "txtPicture"};
    if (page == 1 && TidyLines(bubbles.txtBubble).empty())
        return Complaint{u"Please enter what is thought on the picture.", "txtBubble"};
    return CheckNumbers(bubbles, page);
}

void Tidy(ThoughtBubbles& bubbles)
{
    TidyBlock(bubbles);
    Tidy(bubbles.Picture);
    bubbles.Picture.Link.clear();
}

} // namespace orvane
