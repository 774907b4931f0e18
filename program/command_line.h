#pragma once

#include "core/text.h"

#include <QStringList>

#include <optional>
#include <variant>

namespace orvane {

/// What the terminal is told instead of a start, and the program's exit code.
struct TerminalAnswer
{
    std::string Words;
    int ExitCode = 0;
};

/// The answer to --help or --version among the arguments, which needs no display; nothing when
/// neither is there.
std::optional<TerminalAnswer> AnswerOf(const QStringList& arguments, TextView version);

/// The full path of the project file that the arguments name, empty for none; an answer when they
/// hold anything else. The arguments are without the program's name and the toolkit's own options.
std::variant<Text, TerminalAnswer> ProjectOf(const QStringList& arguments);

} // namespace orvane
