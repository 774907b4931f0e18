#include "effects/page/page_transitions_form.h"

#include "core/pick_lists.h"
#include "windows/page_builder.h"

namespace orvane {

namespace {

constexpr auto transitions = [] {
    std::array<ChoiceItem, PageTransitions::Transitions.size()> items;
    items[0] = {PageTransitions::None, u"None"};
    for (std::size_t i = 0; i < RevealTransitions.size(); ++i)
        items[i + 1] = {PageTransitions::Transitions[i + 1], RevealTransitions[i]};
    return items;
}();

} // namespace

PageTransitionsForm::PageTransitionsForm(Workbench& bench, QWidget* parent)
    : EffectForm("PageTransitions", bench, parent)
{
    PageBuilder page = AddPage(
        {u"Web Page Transitions",
         u"Choose how one page takes the place of another.  Both pages need the effect, so put it "
         u"into all pages that link to each other.  Browsers of the Chromium kind show it; a "
         u"browser without page transitions, such as Firefox, can show a plain cover that opens."});
    page.ChoiceBox("cboArrival", u"This page &arrives by:", transitions);
    page.ChoiceBox("cboLeaving", u"The page before &leaves by:", transitions);
    page.NumberBox("txtSeconds", u"&Each of them takes:", {}, u"seconds");
    page.CheckBox("chkElsewhere", u"A cove&r in browsers without page transitions");
    page.ColorSwatch("cmdCoverColor", u"C&olor of the cover:");
    page.Fill();

    AddButtons(Buttons::OnePage);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
