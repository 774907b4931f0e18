#include "effects/page/anti_spam_link_form.h"

#include "services/file_requests.h"

#include <QCheckBox>
#include <QPushButton>

namespace orvane {

AntiSpamLinkForm::AntiSpamLinkForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmMailTo", bench, parent)
{
    PageBuilder page =
        AddPage({u"AntiSpam Email Protector",
                 u"Create a link to your email address allowing visitors to write an email message "
                 u"to you.  Includes protection so spammers won't steal your email address from "
                 u"your Web page.",
                 "Email"});
    QLineEdit* Email = page.TextBox("Email", u"Email address:");
    page.TextBox("MailToText", u"Text that will appear as a link on the Web page:");
    page.LockedBrowseRow("txtImage", u"Image (optional):", {},
                         {.Button = "cmdBrowseForImage",
                          .Caption = u"Browse for image...",
                          .Request = BrowseRequest(imageFiles, FolderPurpose::Images)});
    page.TextBox("txtSubject", u"Email subject:");
    page.CheckBox("chkAntiSpam", u"Protect my email address from being taken from my Web page and "
                                 u"used in spam and unsolicited email messages")
        ->hide();
    page.Fill();
    AddButtons(Buttons::OnePage);
    cmdNext->setObjectName(QStringLiteral("cmdOK"));
    cmdNext->setText(QStringLiteral("&OK"));
    Email->selectAll();
}

} // namespace orvane
