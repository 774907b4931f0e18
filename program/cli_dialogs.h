#pragma once

#include "core/dialogs.h"
#include "program/cli_world.h"

#include <optional>
#include <vector>

namespace orvane {

/// The words of a message without its line ends.
Text OnOneLine(TextView words);

/// Dialogs of a run without windows: questions are answered by options or at
/// the terminal, and what is said is kept. There is nobody to pick a file, a
/// colour or a font.
class CliDialogs : public Dialogs
{
public:
    /// Answers every question so; without an answer, asks at the terminal about
    /// this page.
    CliDialogs(const CliWorld& world, std::optional<bool> answer, TextView page)
        : m_world(world), m_answer(answer), m_page(page)
    {
    }

    /// The words of every message since the last call, each on one line.
    std::vector<Text> TakeSaid();

    /// Whether a question was answered with No.
    bool WasRefused() const { return m_wasRefused; }

    /// The words of the first question that nobody answered, and which counted as
    /// No.
    const std::optional<Text>& Unanswered() const { return m_unanswered; }

    void Say(TextView words, Tone tone) override;
    bool Ask(TextView words, TextView title) override;
    std::optional<bool> AskOrCancel(TextView words, TextView title) override;
    std::optional<Text> OpenFile(const FileRequest&) override { return std::nullopt; }
    std::vector<Text> OpenFiles(const FileRequest&) override { return {}; }
    std::optional<Text> SaveFile(const FileRequest&) override { return std::nullopt; }
    std::optional<Text> PickFolder(TextView, TextView) override { return std::nullopt; }
    std::optional<std::int32_t> PickColor() override { return std::nullopt; }
    FontChoice PickFont(const FontChoice& start) override { return start; }
    std::unique_ptr<Progress> FollowWork(TextView words) override;
    PageBoxReply Answer(const PageBox&) override { return {}; }

private:
    const CliWorld& m_world;
    std::optional<bool> m_answer;
    Text m_page;
    std::vector<Text> m_said;
    bool m_wasRefused = false;
    std::optional<Text> m_unanswered;
};

} // namespace orvane
