#include "program/command_line.h"

#include "windows/qt_text.h"

#include <QFileInfo>

namespace orvane {

namespace {

constexpr const char* usage = R"(Usage: orvane [FILE]
Makes special effects for Web pages.

FILE          a recipe (*.ovr), shown in the wizard of its effect, or an
              animation saved before (*.ovn), shown in the animator
-h, --help    these words
--version     the program's version

The manual page orvane(1) names files and environment variables.
)";

constexpr int wrongUse = 2;

} // namespace

std::optional<TerminalAnswer> AnswerOf(const QStringList& arguments, TextView version)
{
    if (arguments.contains(QLatin1String("--help")) || arguments.contains(QLatin1String("-h")))
        return TerminalAnswer{usage};
    if (arguments.contains(QLatin1String("--version")))
        return TerminalAnswer{"Orvane " + ToUtf8(version) + "\n"};
    return std::nullopt;
}

std::variant<Text, TerminalAnswer> FileOf(const QStringList& arguments)
{
    if (arguments.isEmpty())
        return Text();
    if (arguments.size() > 1 || arguments.front().startsWith(u'-'))
        return TerminalAnswer{usage, wrongUse};
    return FromQt(QFileInfo(arguments.front()).absoluteFilePath());
}

} // namespace orvane
