#include "effects/text/vertical_scroller_form.h"

#include "services/file_requests.h"
#include "windows/row_form.h"

namespace orvane {

namespace {

constexpr TextView heading = u"Vertical Scrolling Text";
constexpr TextView subHeading =
    u"Scroll text vertically like a newsfeed and link each scrolling item to a Web page!  Hovering "
    u"over the text pauses the scroller.";

void AddItemFields(PageBuilder& page)
{
    page.MultiLineBox("txtItem", u"Item text:",
                      u"This is the text to be displayed in the vertical scrolling text box");
    page.BrowseRow("txtItemURL", u"Link to Web page:",
                   u"This is the Web page URL (address) to be displayed when the scrolling item is "
                   u"clicked",
                   {.Button = "cmdBrowseURL",
                    .Caption = u"Browse for URL...",
                    .Request = BrowseRequest(pageFiles, FolderPurpose::Links),
                    .GivesFocus = true});
}

constexpr RowLook itemWindow{.Name = "frmVertScrollerAdd",
                             .Title = u"Specify Scroller text and links",
                             .Kind = EffectKind::VerticalScroller,
                             .Letters = 70,
                             .AddFields = &AddItemFields};

constexpr TextView alignments[] = {u"Left", u"Right", u"Center"};

constexpr int endOfWizard = 3;

} // namespace

VerticalScrollerForm::VerticalScrollerForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmVertScroller", bench, parent)
{
    AddItemsPage();
    AddTextPage();
    AddScrollerPage();
    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

void VerticalScrollerForm::AddItemsPage()
{
    PageBuilder page = AddPage({heading, subHeading});
    AddRowList<ScrollerItem>(
        page, {{"lstItems", u"Vertical Scroller items:"}, {"lstLinks", u"Link to this URL:"}},
        itemWindow, m_bench);
}

void VerticalScrollerForm::AddTextPage()
{
    PageBuilder page = AddPage({heading, subHeading, "cboFont"});
    PageBuilder frame = page.Frame(u"Text properties");
    frame.FontRow();
    frame.ColorSwatch("cmdTextColor", u"Text color:", ColorNotation::RgbFunction, u"Select Color");
    frame.ColorSwatch("cmdLinkColor", u"Link color:", ColorNotation::RgbFunction, u"Select Color");
    frame.ComboBox("cboTextAlign", u"Align Text:", alignments, false);
    page.Fill();
}

void VerticalScrollerForm::AddScrollerPage()
{
    PageBuilder page = AddPage({heading, subHeading, "txtWidth"});
    PageBuilder frame = page.Frame(u"Vertical Scroller properties");
    frame.Narrow(frame.TextBox("txtWidth", u"Width:"));
    frame.Narrow(frame.TextBox("txtHeight", u"Height:"));
    frame.ColorSwatch("cmdBGColor", u"Background color:", ColorNotation::RgbFunction,
                      u"Select Color");
    frame.Slider("sldrSpeed", u"Scrolling speed:", u"Slow", u"Fast", {});
    frame.Narrow(frame.TextBox("txtPause", u"Pause after each frame:", {}, u"seconds"));
    page.Fill();
}

void VerticalScrollerForm::Next()
{
    ++m_page;
    ChangePage();
}

void VerticalScrollerForm::Previous()
{
    --m_page;
    ChangePage();
}

/// Stays as it is: when the author comes back from the delivery, Done counts on and does nothing,
/// and Previous after it ends the wizard once more.
void VerticalScrollerForm::ChangePage()
{
    if (m_page > endOfWizard)
        return;
    const VerticalScroller scroller = Parameters();
    if (const auto complaint = CheckPage(scroller, m_page - 1)) {
        GoTo(--m_page);
        return ShowComplaint(*complaint);
    }
    if (m_page == endOfWizard)
        Finish(scroller);
    else
        GoTo(m_page);
}

} // namespace orvane
