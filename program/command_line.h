#pragma once

#include "core/text.h"

#include <QStringList>

#include <optional>
#include <variant>

namespace orvane {

/// What the program writes to the terminal when it ends instead of starting, and its exit code.
struct TerminalAnswer
{
    std::string Words; ///< UTF-8, with line ends
    int ExitCode = 0;
};

/// The answer to --help or --version among the arguments, which needs no display; nothing when
/// neither is there.
std::optional<TerminalAnswer> AnswerOf(const QStringList& arguments, TextView version);

/// The full path of the recipe or project that the arguments name, empty for none; an answer with
/// the usage and exit code 2 when they are anything else. Expects the arguments without the
/// program's name and the toolkit's own options.
std::variant<Text, TerminalAnswer> FileOf(const QStringList& arguments);

} // namespace orvane
