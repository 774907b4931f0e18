#include "effects/page/scrolling_credits.h"

namespace orvane {

namespace {

bool IsText(const ScrollingCredits& credits)
{
    // What is none of the two becomes the first.
    return credits.cboWhat != ScrollingCredits::Whats.back();
}

bool GoesOn(const ScrollingCredits& credits)
{
    return credits.cboAtEnd == ScrollingCredits::Ends.back();
}

} // namespace

Look LookOf(const ScrollingCredits& credits)
{
    Look look{{.Control = "txtNextPage", .IsEnabled = GoesOn(credits)}};
    for (const ControlName ofText : {"txtText", "txtHeight", "chkFadedEdges", "chkTilted"})
        look.push_back({.Control = ofText, .IsEnabled = IsText(credits)});
    return look;
}

std::optional<Complaint> CheckPage(const ScrollingCredits& credits, int page)
{
    if (page == 0 && IsText(credits) && TidyParagraphs(credits.txtText.Words).empty())
        return Complaint{u"Please enter the text of the credits.", "txtText"};
    if (page == 1 && GoesOn(credits) && OneLine(credits.txtNextPage).empty())
        return Complaint{u"Please enter the Web page that comes at the end.", "txtNextPage"};
    return CheckNumbers(credits, page);
}

int PageAfter(const ScrollingCredits& credits, int page)
{
    const int last = IsText(credits) ? 2 : 1;
    return page < last ? page + 1 : -1;
}

void Tidy(ScrollingCredits& credits)
{
    TidyBlock(credits);
    credits.txtNextPage = MendedLink(credits.txtNextPage);
    if (!IsText(credits))
        credits.txtText = {};
}

} // namespace orvane
