#include "effects/page/search_box_form.h"

#include "core/file_names.h"

#include <QRadioButton>

namespace orvane {

SearchBoxForm::SearchBoxForm(Workbench& bench, QWidget* parent, TextView mode)
    : EffectForm("frmGoogle", bench, parent), m_mode(mode)
{
    const SearchModeWords words = WordsOfMode(mode);
    SetEffect(words.Kind);
    PageBuilder page = AddPage(
        {words.Heading, words.SubHeading, mode == searchMode ? ControlName() : "txtTranslateURL"});
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
    // The toolkit shows a window with all of its first field selected.
    EffectForm::setVisible(isVisible);
    if (isVisible)
        txtTranslateURL->end(false);
}

SearchBox SearchBoxForm::Fresh() const
{
    return {.Mode = Text(m_mode)};
}

void SearchBoxForm::UpdateForm()
{
    const SearchBox box = Parameters();
    frameSearch->setVisible(box.Mode == searchMode);
    frameTranslate->setVisible(box.Mode != searchMode);
    txtURL->setEnabled(box.optSearch == SearchPlace::Site);
}

/// The picture comes out of the program's folder.
EffectPayload SearchBoxForm::Produce(const SearchBox& box) const
{
    EffectPayload payload = Generate(box);
    payload.Required.Sources[0] = PathIn(m_bench.Core.ProgramFolder, searchLogo);
    return payload;
}

} // namespace orvane
