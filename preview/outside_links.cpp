#include "preview/outside_links.h"

#include "core/file_names.h"

namespace orvane {

namespace {

Text QuestionOf(TextView target)
{
    constexpr std::size_t longest = 500;
    const bool isMail = StartsWithIgnoringCase(target, u"mailto:");
    return Join({u"The page leads out of the preview, to:\r\n\r\n", Left(target, longest),
                 target.size() > longest ? u"..." : u"",
                 isMail ? u"\r\n\r\nDo you want to open it in your e-mail program?"
                        : u"\r\n\r\nDo you want to open it in your Web browser?"});
}

} // namespace

void OutsideLinks::Offer(TextView target, bool byAuthor)
{
    if (m_isAsking || (m_hasLed && !byAuthor))
        return;
    m_hasLed = true;
    m_isAsking = true;
    // A file is never handed on: what the desktop would do with it is not for a page to choose.
    if (target.empty())
        m_dialogs.Say(u"The page leads out of the preview, to an address that is not valid.");
    else if (target.starts_with(pathSeparator))
        m_dialogs.Say(Join({m_files.FileExists(target)
                                ? u"The page leads to a file that the preview does not open:"
                                : u"The page leads to a file that is not there:",
                            u"\r\n\r\n", target}));
    else if (m_dialogs.Ask(QuestionOf(target)))
        m_shell.OpenWithShell(target);
    m_isAsking = false;
}

} // namespace orvane
