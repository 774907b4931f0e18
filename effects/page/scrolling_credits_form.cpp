#include "effects/page/scrolling_credits_form.h"

#include "services/file_requests.h"
#include "windows/block_rows.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Scrolling Credits";

constexpr ChoiceItem whats[] = {{u"text", u"A text of its own, in a box"},
                                {u"page", u"The Web page itself"}};

constexpr ChoiceItem ends[] = {
    {u"stop", u"Stop"}, {u"again", u"Begin again"}, {u"page", u"Go on to another Web page"}};

} // namespace

ScrollingCreditsForm::ScrollingCreditsForm(Workbench& bench, QWidget* parent)
    : EffectForm("Credits", bench, parent)
{
    PageBuilder text = AddPage({heading, u"Choose what scrolls like the credits of a movie.  A "
                                         u"visitor who touches a page that scrolls ends that for "
                                         u"good."});
    text.ChoiceBox("cboWhat", u"&What scrolls:", whats);
    text.MultiLineBox("txtText", u"&Text:", u"The credits; an empty line parts two paragraphs");
    text.Fill();

    PageBuilder movement = AddPage({heading, u"Choose how it scrolls, and what happens then."});
    movement.Slider("sldrSpeed", u"&Speed:", u"Slow", u"Fast", {});
    movement.NumberBox("txtWaitSeconds", u"&Begin after:", {}, u"seconds");
    movement.ChoiceBox("cboAtEnd", u"At the &end:", ends);
    movement.BrowseRow("txtNextPage", u"&Go on to:", u"The Web page that comes at the end",
                       {.Button = "cmdBrowseForURL",
                        .Caption = u"Browse for URL...",
                        .Request = BrowseRequest(pageFiles, FolderPurpose::Links),
                        .GivesFocus = true});
    movement.NumberBox("txtHeight", u"&Height of the box:", {}, u"pixels");
    movement.CheckBox("chkFadedEdges", u"The text &fades above and below");
    movement.CheckBox("chkTilted", u"The text &leans back");
    movement.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the text looks like."});
    AddTextLook(look);
    AddPageColor(look, "cmdBackColor", u"&Background color:");
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
