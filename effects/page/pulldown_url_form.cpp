#include "effects/page/pulldown_url_form.h"

#include "services/file_requests.h"
#include "windows/qt_text.h"

namespace orvane {

PulldownURLForm::PulldownURLForm(Workbench& bench, const MenuItem& item, QWidget* parent)
    : OkCancelForm("PulldownURL", u"Specify Menu item and URL",
                   help_topics::firstEffect + static_cast<int>(EffectKind::PulldownMenu), bench,
                   parent)
{
    setMinimumWidth(80 * fontMetrics().averageCharWidth());
    PageBuilder page = Rows();
    txtMenuItem = page.TextBox("txtMenuItem", u"Menu item text:");
    txtMenuItemURL = page.BrowseRow("txtMenuItemURL", u"Link menu item to this Web page:", {},
                                    {.Button = "cmdBrowseForURL",
                                     .Caption = u"Browse for URL...",
                                     .Request = BrowseRequest(pageFiles, FolderPurpose::Links)});
    page.Fill();
    AddButtons();
    txtMenuItem->setText(ToQt(item.txtMenuItem));
    txtMenuItemURL->setText(ToQt(item.txtMenuItemURL));
}

MenuItem PulldownURLForm::Item() const
{
    return {.txtMenuItem = FromQt(txtMenuItem->text()),
            .txtMenuItemURL = FromQt(txtMenuItemURL->text())};
}

void PulldownURLForm::Take()
{
    MenuItem item = Item();
    if (const auto complaint = Check(item))
        return ShowComplaint(*complaint);
    Tidy(item);
    txtMenuItemURL->setText(ToQt(item.txtMenuItemURL));
    accept();
}

} // namespace orvane
