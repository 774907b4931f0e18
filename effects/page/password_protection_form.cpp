#include "effects/page/password_protection_form.h"

#include "windows/qt_text.h"

#include <QPushButton>
#include <QRadioButton>

#include <utility>

namespace orvane {

using namespace password_pages;

namespace {

constexpr TextView heading = u"Password Protection";

} // namespace

PasswordProtectionForm::PasswordProtectionForm(Workbench& bench, QWidget* parent)
    : EffectForm("Password", bench, parent)
{
    AddSchemePage();
    AddScriptPage();
    AddServerPage();
    ShowLook(*this, LookOf(PasswordProtection())); // so that the window has room for the words
    AddButtons(Buttons::Paged);
}

void PasswordProtectionForm::AddSchemePage()
{
    PageBuilder page = AddPage({heading, FindRow(EffectKind::PasswordScript)->Description});
    PageBuilder frame = page.Frame(u"Select a password protection scheme");
    frame.OptionGroup("optScheme",
                      {u"JavaScript Password (medium security)", u"CGI Password (high security)"});
    frame.Note({}, "lblDescription");
    page.Fill();
}

void PasswordProtectionForm::AddScriptPage()
{
    PageBuilder page =
        AddPage({heading, FindRow(EffectKind::PasswordScript)->Description, "optPasswordType(0)"});
    PageBuilder frame = page.Frame(u"Password type");
    optOnePassword = frame.Option("optPasswordType", 0,
                                  u"Use one password to gain access to a specific Web page.");
    frame.Option("optPasswordType", 1,
                 u"Use different passwords that allow access to different Web pages.  "
                 u"For example, typing the password \"bob\" accesses the bob.html Web page, and "
                 u"typing \"sam\" will access the sam.html Web page.");
    page.TextBox("GatePassword", u"Password:",
                 u"This is the password to be used in the password protection");
    auto* address = page.TextBox("GateUrl", u"URL:",
                                 u"This i the Web page URL (address) to be displayed if the user "
                                 u"logs in successfully");
    LabelOf(address)->setObjectName(QStringLiteral("lblGateUrl"));
    page.Note({}, "lblExample");
    page.Fill();
}

void PasswordProtectionForm::AddServerPage()
{
    PageBuilder page =
        AddPage({heading, FindRow(EffectKind::PasswordServer)->Description, "LoginUsername"});
    page.TextBox("LoginUsername", u"Username:",
                 u"This is the username to be used in the password protection");
    page.TextBox("LoginPassword", u"Password:",
                 u"This is the password to be used in the password protection");
    page.TextBox("LandingUrl", u"Display this Web page (URL) when user logs in:",
                 u"This is the Web page URL (address) that will be displayed if the user logs in "
                 u"successfully");
    PageBuilder optional = page.Frame(u"Optional settings");
    optional.Note(u"These settings may need to be specified if your Internet service provider's "
                  u"Web server requires them.  Click on the help button for more information.");
    optional.CheckBox("ChangeSettings", u"Change settings");
    optional.TextBox(
        "CgiDirectory", u"Directory containing password.cgi file:",
        u"This is the directory (folder) that contains the password.cgi file on the Web server",
        u"(if different from default directory)");
    optional.TextBox("PerlPath", u"Path to PERL compiler:",
                     u"This is the pathname of the PERL compiler on your Web server");
    page.Fill();
}

int PasswordProtectionForm::PageBefore(int) const
{
    return scheme;
}

void PasswordProtectionForm::Next()
{
    const int before = Page();
    EffectForm::Next();
    if (Page() == before)
        return;
    SetEffect(Page() == server ? EffectKind::PasswordServer : EffectKind::PasswordScript);
    // Stays as it is: whoever comes to the page again starts with one password.
    if (Page() == script && !std::exchange(m_keepsOption, false))
        optOnePassword->setChecked(true);
}

void PasswordProtectionForm::Previous()
{
    EffectForm::Previous();
    SetEffect(EffectKind::PasswordScript);
}

void PasswordProtectionForm::TakeDraft(TextView draft)
{
    EffectForm::TakeDraft(draft);
    // A recipe leads from the server page back to the first one.
    SetEffect(Page() == server ? EffectKind::PasswordServer : EffectKind::PasswordScript);
    m_keepsOption = true;
}

} // namespace orvane
