#include "effects/page/password_protection.h"

#include "core/template.h"
#include "insertion/page_encoding.h"
#include "reedit/applet_values.h"
#include "services/web_address.h"

namespace orvane {

namespace {

constexpr Template gateHead(uR"page(
<HEAD>
<script language="JavaScript">

«CreditBanner»

<!--
var username = "";
function password() {
     passtext = prompt('Please enter password'  ,"");
     if (passtext == "" ) {history.back(1);}
     if (passtext == null )  {history.back(1);}
«GateLines»
}
password();
//-->
</script>
</HEAD>


)page");

constexpr Template
    onePassword(uR"page(     if (passtext =="«GatePassword»")   {window.location = "«GateUrl»" ;}
 else {history.back(1);})page");

constexpr Template
    manyPasswords(uR"page(     else {window.location = "«GateUrl»/" + passtext + ".html" ;})page");

constexpr Template gateBody(uR"page(
<H1>WARNING</H1><BR><BR>
This is a password protected page.   Only Javascript enabled
browsers can utilize this page.
)page");

// Stays as it is: the capital "Print", and a form for a second try whose inputs have other names
// than those that the script reads.
constexpr Template serverScript(uR"page(
#! «PerlPath»
##############################################################################
# Variable Definition

$ext = "html";
$passwd = "«Password»";
$username = "«Username»";

###########################################################################

&parse_form;

Print "Content-type: text/html\n\n";

###########################################################################
# Check Password
###########################################################################

   if (!($FORM{'password'} eq $passwd && $FORM{'username'} eq $username)) {
      &error(bad_combo);
   }
   else {
     print "<html><head><meta http-equiv=\"Refresh\" Content=\"0\;url=«LandingUrl»\"></head>\n";
       print "<body></body></html>";
   }
#######################
# Parse Form Contents

sub parse_form {

   # Read input
   read(STDIN, $buffer, $ENV{'CONTENT_LENGTH'});

   # Split the name-value pairs
   @pairs = split(/&/, $buffer);

   foreach $pair (@pairs) {
      ($name, $value) = split(/=/, $pair);

      # Remove/convert plus signs and %-encoding
      $value =~ tr/+/ /;
      $value =~ s/%([a-fA-F0-9][a-fA-F0-9])/pack("C", hex($1))/eg;

      $FORM{$name} = $value;
   }
}

######################
# Error handling

sub error {
   $error = $_[0];
   if ($error eq 'bad_combo') {
      print "<html><head><title>Bad Username - Password Combination</title></head>\n";
      print "<body><center><font face=\"Arial, Helvetica\" size=2><font size=5>Bad Username - Password Combination</font></center>\n";
      print "<HR>\n\n";
      print "You entered and invalid username password pair.  Please try again.<p>\n\n";
      print "<FORM METHOD=\"POST\" ACTION=\"«CgiDirectory»password.cgi\">\n";
      print "<P ALIGN=CENTER>USERNAME: <INPUT TYPE=Text NAME=\"UserName\"><BR>\n";
      print "PASSWORD: <INPUT TYPE=Text NAME=\"Password\"><BR>\n";
      print "<INPUT TYPE=Submit NAME=\"submit\" VALUE=\"Login\"><BR>\n";
      print "</P></FORM>\n";
      print "</FONT>\n";
      print "</BODY></HTML>\n";
   }
   exit;
}
)page");

constexpr Template loginForm(uR"page(
<FORM METHOD="POST" ACTION="«CgiDirectory»password.cgi">
<table border="0" cellpadding="0" cellspacing="0" bgcolor="#C0C0C0">
    <tr>
        <td align="center" colspan="7" bgcolor="#0000A0"><table border="0" cellpadding="0" bgcolor="#0000A0">
    <tr>
        <td><font color="#FFFFFF" size="2" face="Arial,Helvetica"><b>Please Login</b></font></td></tr>
</table>
    <tr>
        <td width="20">&nbsp;</td>
        <td colspan="5"><font size="2" face="Arial,Helvetica"><br>
                Please enter your username and password</font></td>
        <td width="20">&nbsp;</td></tr>
    <tr>
        <td colspan=7>&nbsp;</td></tr>
    <tr>
        <td>&nbsp;</td>
        <td><font size="1" face="Arial,Helvetica">USERNAME</font></td>
        <td width="8">&nbsp;</td>
        <td><font face="Arial,Helvetica"><input type="text" size="14" name="username"></font></td>
        <td colspan=3>&nbsp;</td></tr>
    <tr>
        <td colspan=7>&nbsp;</td></tr>
    <tr>
        <td>&nbsp;</td>
        <td><font size="1" face="Arial,Helvetica">PASSWORD</font></td>
        <td>&nbsp;</td>
        <td><font face="Arial,Helvetica"><input type="password" size="14" name="password"></font></td>
        <td width="8">&nbsp;</td>
        <td align="right"><font size="1" face="Arial,Helvetica"><input type="submit" name="Login" value="&nbsp;&nbsp;Login&nbsp;&nbsp;"></font></td>
        <td>&nbsp;</td></tr>
    <tr>
        <td colspan=7>&nbsp;</td></tr>
        </table>
        </form>
)page");

constexpr TextView scriptName = u"password.cgi";
constexpr TextView usualPerlPath = u"/usr/bin/perl";

Text GateHead(const PasswordProtection& gate)
{
    const Text lines =
        gate.optPasswordType == PasswordType::Many
            ? Fill(manyPasswords, {{u"GateUrl", gate.GateUrl}})
            : Fill(onePassword, {{u"GatePassword", gate.GatePassword}, {u"GateUrl", gate.GateUrl}});
    return Fill(gateHead, {{u"CreditBanner", CreditBanner}, {u"GateLines", lines}});
}

/// The script for the Web server, as it lies on the disk.
MadeFile PasswordScript(const PasswordProtection& protection)
{
    const Text script = Fill(serverScript, {{u"PerlPath", protection.PerlPath},
                                            {u"Password", Trim(protection.LoginPassword)},
                                            {u"Username", Trim(protection.LoginUsername)},
                                            {u"LandingUrl", protection.LandingUrl},
                                            {u"CgiDirectory", protection.CgiDirectory}});
    return {.Name = Text(scriptName),
            .Bytes = EncodeForPage(script, PageEncoding::Windows1252),
            .IsSecret = true};
}

void TidyLogin(PasswordProtection& login)
{
    const Text landing = WithScheme(login.LandingUrl);
    // Stays as it is: the address loses its blanks only together with a missing prefix.
    if (landing != login.LandingUrl)
        login.LandingUrl = Trim(landing);
    login.CgiDirectory = Text(Trim(login.CgiDirectory));
    if (!login.CgiDirectory.empty() && !login.CgiDirectory.ends_with(u'/'))
        login.CgiDirectory += u'/';
    login.PerlPath = Text(Trim(login.PerlPath));
    if (login.PerlPath.empty())
        login.PerlPath = usualPerlPath;
}

TextView DescriptionOf(PasswordScheme scheme)
{
    constexpr TextView script =
        u"  JavaScript password-protection: Provides less security than the CGI password, but is "
        u"easier to implement in your Web page.  It allows you to specify one password for a Web "
        u"page or different passwords for multiple Web pages.";
    switch (scheme) {
    case PasswordScheme::Script:
        return script;
    case PasswordScheme::Server:
        return u"  CGI password-protection: Provides higher security than the JavaScript password, "
               u"but is more difficult to implement in your Web page.  Your Internet service "
               u"provider must allow custom CGI scripts to be installed on their Web server in "
               u"order for this to work correctly.";
    default:
        return Trim(script);
    }
}

} // namespace

void ChooseKind(PasswordProtection& protection, EffectKind kind)
{
    if (kind == EffectKind::PasswordServer)
        protection.optScheme = PasswordScheme::Server;
}

Look LookOf(const PasswordProtection& protection)
{
    const bool isOne = protection.optPasswordType != PasswordType::Many;
    const TextView address =
        isOne ? u"URL of Web page to display when user types in correct password:"
              : u"URL of Web page to display when user types in password:";
    const TextView example =
        isOne
            ? u"Example:  Type http://www.mysite.example/secret.html if that's the Web page to be "
              u"accessed by the password (or just secret.html if the HTML document containing this "
              u"JavaScript code is in the same folder as secret.html)."
            : u"Example:  If you want the user typing \"bob\" to access bob.html at the address "
              u"http://www.mysite.example/bob.html then type http://www.mysite.example/ into the "
              u"input box above.";
    return {{.Control = "lblDescription", .Words = DescriptionOf(protection.optScheme)},
            {.Control = "GatePassword", .IsShown = isOne},
            {.Control = "GateUrl", .Words = address},
            {.Control = "lblExample", .Words = example},
            {.Control = "CgiDirectory", .IsEnabled = protection.ChangeSettings},
            {.Control = "PerlPath", .IsEnabled = protection.ChangeSettings}};
}

std::optional<Complaint> CheckPage(const PasswordProtection& protection, int page)
{
    if (page == password_pages::scheme && protection.optScheme == PasswordScheme::None)
        return Complaint{u"Please select a password protection scheme.", {}};
    if (page != password_pages::server)
        return std::nullopt;
    if (Trim(protection.LoginUsername).empty())
        return Complaint{u"Please enter a username.", "LoginUsername"};
    if (Trim(protection.LoginPassword).empty())
        return Complaint{u"Please enter a password.", "LoginPassword"};
    if (Trim(protection.LandingUrl).empty())
        return Complaint{u"Please enter a Web page URL.", "LandingUrl"};
    return std::nullopt;
}

int PageAfter(const PasswordProtection& protection, int page)
{
    using namespace password_pages;
    if (page != scheme)
        return -1;
    return protection.optScheme == PasswordScheme::Server ? server : script;
}

void Tidy(PasswordProtection& protection)
{
    if (protection.optScheme == PasswordScheme::Server)
        TidyLogin(protection);
    else if (protection.GateUrl.ends_with(u'/'))
        protection.GateUrl.pop_back();
}

std::vector<Hint> HintsOf(const PasswordProtection& protection)
{
    HintList hints;
    if (protection.optScheme == PasswordScheme::Server)
        return hints.InScript("LoginUsername", protection.LoginUsername, u"\"")
            .InScript("LoginPassword", protection.LoginPassword, u"\"")
            .InScript("LandingUrl", protection.LandingUrl, u"\"")
            .InScript("CgiDirectory", protection.CgiDirectory, u"\"")
            .Hints();
    const bool isOne = protection.optPasswordType == PasswordType::One;
    if (isOne && protection.GatePassword.empty())
        hints.Say("GatePassword", u"Without a password here, visitors come in without one.");
    if (isOne)
        hints.InScript("GatePassword", protection.GatePassword, u"\"");
    return hints.InScript("GateUrl", protection.GateUrl, u"\"").Hints();
}

EffectPayload Generate(const PasswordProtection& protection)
{
    if (protection.optScheme == PasswordScheme::Server)
        return {
            .Kind = EffectKind::PasswordServer,
            .BODYHTML = Fill(loginForm, {{u"CgiDirectory", protection.CgiDirectory}}),
            .SupportFiles = {Text(scriptName)},
            .MadeFiles = {PasswordScript(protection)},
        };
    return {
        .Kind = EffectKind::PasswordScript,
        .HEADHTML = GateHead(protection),
        .BODYHTML = Fill(gateBody),
    };
}

void ReadTag(PasswordProtection& protection, const PastedTag& tag)
{
    const Text value = TagValue(tag, u"passtext ==");
    // Stays as it is: a gate of ours tests for the empty word first, so that none is found.
    const bool isOne = Trim(value).empty();
    protection.optPasswordType = isOne ? PasswordType::One : PasswordType::Many;
    if (!isOne)
        protection.GatePassword = value;
    protection.GateUrl = TagValue(tag, u"window.location = ");
}

} // namespace orvane
