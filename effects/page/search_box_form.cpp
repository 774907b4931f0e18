#include "effects/page/search_box_form.h"

namespace orvane {

SearchBoxForm::SearchBoxForm(Workbench& bench, QWidget* parent, EffectKind kind)
    : EffectForm("frmGoogle", bench, parent, kind)
{
    const SearchModeWords words = WordsOfMode(Fresh().Mode);
    PageBuilder page = AddPage({words.Heading, words.SubHeading,
                                kind == EffectKind::SearchBox ? ControlName() : "txtTranslateURL"});
    page.HiddenText("Mode");
    PageBuilder search = page.Frame(u"Search box settings", "frameSearch");
    search.OptionGroup("optSearch", {u"Search the Web", u"Search a specific Web site"});
    search.TextBox("txtURL", u"Web site:", {}, u"e.g., mysite.com");
    PageBuilder translate = page.Frame(u"Translation settings", "frameTranslate");
    txtTranslateURL = translate.TextBox("txtTranslateURL", u"Web page:");
    translate.Note(Join({u"e.g., ", translateSample}));
    page.Fill();
    AddButtons(Buttons::OnePage);
}

void SearchBoxForm::setVisible(bool isVisible)
{
    EffectForm::setVisible(isVisible);
    // A dialog selects what its first field holds; here the cursor waits behind the "http://".
    txtTranslateURL->end(false);
}

} // namespace orvane
