#include "effects/page/search_box_form.h"

#include <QRadioButton>

namespace orvane {

SearchBoxForm::SearchBoxForm(Workbench& bench, QWidget* parent, EffectKind kind)
    : EffectForm("frmGoogle", bench, parent, kind)
{
    const SearchModeWords words = WordsOfMode(Fresh().Mode);
    PageBuilder page = AddPage({words.Heading, words.SubHeading,
                                kind == EffectKind::SearchBox ? ControlName() : "txtTranslateURL"});
    page.HiddenText("Mode");
    PageBuilder search = page.Frame(u"Search box settings", "frameSearch");
    frameSearch = search.Page();
    search.OptionGroup("optSearch", {u"Search the Web", u"Search a specific Web site"});
    for (int i = 0; i < 2; ++i)
        connect(findChild<QRadioButton*>(MemberName("optSearch", i)), &QRadioButton::toggled, this,
                [this] { UpdateForm(); });
    txtURL = search.TextBox("txtURL", u"Web site:", {}, u"e.g., mysite.com");
    PageBuilder translate = page.Frame(u"Translation settings", "frameTranslate");
    frameTranslate = translate.Page();
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

void SearchBoxForm::UpdateForm()
{
    const SearchBox box = Parameters();
    frameSearch->setVisible(box.Mode == searchMode);
    frameTranslate->setVisible(box.Mode != searchMode);
    txtURL->setEnabled(box.optSearch == SearchPlace::Site);
}

} // namespace orvane
