#include "program/cli.h"
#include "program/cli_field_labels.h"
#include "program/cli_own_files.h"

#include "disk/disk_file_store.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <vector>

#include <termios.h>
#include <unistd.h>

namespace {

using namespace orvane;

std::optional<Text> EnvironmentVariable(TextView name)
{
    const char* value = std::getenv(ToUtf8(name).c_str());
    if (value == nullptr)
        return std::nullopt;
    return FromUtf8(value);
}

/// The clock of this place, in the parts of a date.
std::tm LocalTime()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return parts;
}

Text DateOf(const std::tm& parts)
{
    char date[32] = {};
    std::strftime(date, sizeof date, "%Y-%m-%d", &parts);
    return FromUtf8(date);
}

/// Days since the year 1900 began, as the numbers of spreadsheets count them.
double DaysOf(const std::tm& parts)
{
    using namespace std::chrono;
    const sys_days day = year(parts.tm_year + 1900) / (parts.tm_mon + 1) / parts.tm_mday;
    const sys_days first = year(1899) / December / 30;
    const int seconds = (parts.tm_hour * 60 + parts.tm_min) * 60 + parts.tm_sec;
    return static_cast<double>((day - first).count()) + seconds / 86400.0;
}

void Write(std::string_view words, std::FILE* file)
{
    std::fwrite(words.data(), 1, words.size(), file);
}

/// A line of the terminal, without its line feed.
std::string ReadLine()
{
    std::string line;
    for (int sign = std::getchar(); sign != EOF && sign != '\n'; sign = std::getchar())
        line += static_cast<char>(sign);
    return line;
}

bool Ask(std::string_view words)
{
    Write(words, stderr);
    Write(" [y/n] ", stderr);
    const std::string answer = ReadLine();
    return answer.starts_with('y') || answer.starts_with('Y');
}

Text AskSecret(std::string_view words)
{
    Write(words, stderr);
    Write(": ", stderr);
    termios shown{};
    tcgetattr(STDIN_FILENO, &shown);
    termios hidden = shown;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    const std::string secret = ReadLine();
    tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown);
    Write("\n", stderr);
    return FromUtf8(secret);
}

} // namespace

int main(int argc, char** argv)
{
    const auto folders = FindUserFolders(EnvironmentVariable);
    if (!folders) {
        Write("orvane-cli: no folder for what Orvane keeps: set HOME to your home "
              "folder\n",
              stderr);
        return EXIT_FAILURE;
    }
    std::error_code error;
    const auto current = std::filesystem::current_path(error);
    PosixCalls calls;
    DiskFileStore files(calls, folders->State);
    const std::tm now = LocalTime();
    CliWorld world{.Files = files,
                   .Folders = *folders,
                   .CurrentFolder = FromUtf8(error ? std::string("/") : current.string()),
                   .Version = ORVANE_VERSION,
                   .Today = DateOf(now),
                   .Clock = DaysOf(now),
                   .Out = [](std::string_view words) { Write(words, stdout); },
                   .Error = [](std::string_view words) { Write(words, stderr); },
                   .Variable = EnvironmentVariable,
                   // A terminal that shows what was done needs no other progress.
                   .ShowsProgress = isatty(STDERR_FILENO) == 1 && isatty(STDOUT_FILENO) != 1,
                   .OwnFile = OwnFile,
                   .FieldLabel = FieldLabel};
    if (isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1) {
        world.Ask = Ask;
        world.AskSecret = AskSecret;
    }
    const std::vector<std::string> words(argv + 1, argv + argc);
    return static_cast<int>(RunCli(words, world));
}
