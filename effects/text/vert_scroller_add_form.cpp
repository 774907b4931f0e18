#include "effects/text/vert_scroller_add_form.h"

#include "effects/text/vertical_scroller.h"
#include "services/file_requests.h"
#include "services/web_address.h"
#include "windows/multi_line_box.h"
#include "windows/qt_text.h"

namespace orvane {

VertScrollerAddForm::VertScrollerAddForm(Workbench& bench, const std::vector<Text>& row,
                                         QWidget* parent)
    : OkCancelForm("frmVertScrollerAdd", u"Specify Scroller text and links",
                   help_topics::firstEffect + static_cast<int>(EffectKind::VerticalScroller), bench,
                   parent)
{
    setMinimumWidth(70 * fontMetrics().averageCharWidth());
    txtItem = Rows().MultiLineBox("txtItem", u"Item text:",
                                  u"This is the text to be displayed in the vertical scrolling "
                                  u"text box");
    txtItemURL =
        Rows().BrowseRow("txtItemURL", u"Link to Web page:",
                         u"This is the Web page URL (address) to be displayed when the scrolling "
                         u"item is clicked",
                         {.Button = "cmdBrowseURL",
                          .Caption = u"Browse for URL...",
                          .Request = BrowseRequest(pageFiles, FolderPurpose::Links)});
    connect(txtItemURL, &QLineEdit::textChanged, this,
            [this](const QString& link) { ShowHints(HintsOfScrollerItem(FromQt(link))); });
    AddButtons();
    if (row.empty())
        return;
    txtItem->SetWords(row[0]);
    txtItemURL->setText(ToQt(row[1]));
}

std::vector<Text> VertScrollerAddForm::Row() const
{
    return {txtItem->Words(), WithScheme(FromQt(txtItemURL->text()))};
}

void VertScrollerAddForm::Take()
{
    if (const auto complaint = CheckScrollerItem(txtItem->Words()))
        return ShowComplaint(*complaint);
    accept();
}

} // namespace orvane
