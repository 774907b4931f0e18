#include "effects/applet/image_fade_url_form.h"

#include "effects/applet/image_fade.h"
#include "services/file_requests.h"
#include "services/web_address.h"
#include "windows/qt_text.h"

namespace orvane {

ImageFadeURLForm::ImageFadeURLForm(Workbench& bench, TextView url, QWidget* parent)
    : OkCancelForm("ImageFadeURL", u"Specify URL to link to ",
                   help_topics::firstEffect + static_cast<int>(EffectKind::ImageFade), bench,
                   parent)
{
    setMinimumWidth(70 * fontMetrics().averageCharWidth());
    txtURL = Rows().BrowseRow("txtURL", u"Link to this Web page URL:", {},
                              {.Button = "cmdBrowseForImage",
                               .Caption = u"Browse for image...",
                               .Request = ImageRequest()});
    AddButtons();
    txtURL->setText(ToQt(url));
    txtURL->selectAll();
}

Text ImageFadeURLForm::URL() const
{
    return FromQt(txtURL->text());
}

void ImageFadeURLForm::Take()
{
    if (const auto complaint = CheckFadeLink(URL()))
        return ShowComplaint(*complaint);
    txtURL->setText(ToQt(WithScheme(URL())));
    accept();
}

} // namespace orvane
