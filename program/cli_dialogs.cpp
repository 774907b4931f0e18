#include "program/cli_dialogs.h"

#include <utility>

namespace orvane {

namespace {

/// Work that nobody cancels.
class Unwatched : public Progress
{
public:
    bool GoOn(std::uint64_t, std::uint64_t) override { return true; }
};

} // namespace

Text OnOneLine(TextView words)
{
    return ReplaceAll(ReplaceAll(ReplaceAll(words, u"\r\n\r\n", u"  "), u"\r\n", u"  "), u"\n",
                      u" ");
}

std::vector<Text> CliDialogs::TakeSaid()
{
    return std::exchange(m_said, {});
}

void CliDialogs::Say(TextView words, Tone)
{
    m_said.push_back(OnOneLine(words));
}

bool CliDialogs::Ask(TextView words, TextView)
{
    bool answer = false;
    if (m_answer)
        answer = *m_answer;
    else if (m_world.Ask)
        answer = m_world.Ask(ToUtf8(Join({m_page, u": ", OnOneLine(words)})));
    else if (!m_unanswered)
        m_unanswered = OnOneLine(words);
    m_wasRefused = m_wasRefused || !answer;
    return answer;
}

std::optional<bool> CliDialogs::AskOrCancel(TextView words, TextView title)
{
    return Ask(words, title);
}

std::unique_ptr<Progress> CliDialogs::FollowWork(TextView)
{
    return std::make_unique<Unwatched>();
}

} // namespace orvane
