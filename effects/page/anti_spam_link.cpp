#include "effects/page/anti_spam_link.h"

#include "core/template.h"

#include <algorithm>

namespace orvane {

namespace {

// The word "mailto" is split as well, so that no harvester of addresses finds it.
constexpr Template head(uR"page(
<script type='text/javascript' language='javascript'>
<!--
function SendEmail(name, domain, extension, subject){
   window.location = 'mai' + 'lto:' + name + '@' + domain + '.' + extension + '?subject=' + subject;
}
//--></script>
)page");

constexpr Template hiddenLink(
    uR"page(<a href="javascript:SendEmail('«Name»', '«Domain»', '«Extension»', '«Subject»')">«ImageTag»«MailToText»</a>)page");

constexpr Template plainLink(uR"page(<A HREF="mailto:«Email»">«ImageTag»«MailToText»</A>)page");

constexpr Template subjectLink(
    uR"page(<a href="mailto:«Email»?subject=«Subject»">«ImageTag»«MailToText»</a>)page");

constexpr Template imageTag(uR"page(<img src="«Image»" border="0">)page");

/// The pieces of an address.
struct SplitEmail
{
    TextView Name;
    TextView Domain;
    TextView Extension;
};

/// Splits at the first "@" and the first "." behind it.
SplitEmail Split(TextView email)
{
    const std::size_t at = Find(email, u"@");
    const std::size_t dot = Find(email, u".", std::max<std::size_t>(at, 1));
    // Stays as it is: without a "." behind the "@", the whole address is the extension.
    return {.Name = Left(email, at == 0 ? 0 : at - 1),
            .Domain = dot == 0 ? TextView() : Mid(email, at + 1, dot - at - 1),
            .Extension = Mid(email, dot + 1)};
}

Text HiddenBody(const AntiSpamLink& link, TextView subject, TextView image)
{
    const SplitEmail email = Split(link.Email);
    return Fill(hiddenLink, {{u"Name", email.Name},
                             {u"Domain", email.Domain},
                             {u"Extension", email.Extension},
                             {u"Subject", subject},
                             {u"ImageTag", image},
                             {u"MailToText", link.MailToText}});
}

Text PlainBody(const AntiSpamLink& link, TextView subject, TextView image)
{
    if (subject.empty())
        return Fill(
            plainLink,
            {{u"Email", link.Email}, {u"ImageTag", image}, {u"MailToText", link.MailToText}});
    return Fill(subjectLink, {{u"Email", link.Email},
                              {u"Subject", subject},
                              {u"ImageTag", image},
                              {u"MailToText", link.MailToText}});
}

} // namespace

void Recall(AntiSpamLink& link, const Settings& settings)
{
    link.Email = settings.Get(settingKeys::emailAddress);
}

void Remember(const AntiSpamLink& link, Settings& settings)
{
    settings.Put(settingKeys::emailAddress, link.Email);
}

std::optional<Complaint> Check(const AntiSpamLink& link)
{
    if (link.Email.empty())
        return Complaint{u"Please specify an Email Address.", "Email"};
    if (link.MailToText.empty() && link.txtImage.empty())
        return Complaint{u"Please specify text or an image to be displayed as the Email link.",
                         "MailToText"};
    if (link.chkAntiSpam && Find(link.MailToText, u"@") != 0)
        return Complaint{u"Type something other than an email address for the Email link text "
                         u"(such as 'Email me') to prevent your email address from being read by "
                         u"spam mailers.",
                         "MailToText"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const AntiSpamLink& link)
{
    HintList hints;
    if (link.chkAntiSpam)
        hints.InScript("Email", link.Email, bothQuotes)
            .InScript("txtSubject", link.txtSubject, bothQuotes);
    return hints.Hints();
}

EffectPayload Generate(const AntiSpamLink& link)
{
    const TextView subject = Trim(link.txtSubject);
    const Text image = link.txtImage.empty() ? Text() : Fill(imageTag, {{u"Image", link.txtImage}});
    return {
        .Kind = EffectKind::AntiSpamLink,
        .HEADHTML = link.chkAntiSpam ? Fill(head) : Text(),
        .BODYHTML =
            link.chkAntiSpam ? HiddenBody(link, subject, image) : PlainBody(link, subject, image),
    };
}

} // namespace orvane
