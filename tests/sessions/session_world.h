#pragma once

#include "disk/disk_file_store.h"
#include "disk/settings_file.h"
#include "program/form_desk.h"
#include "tests/support/doubles.h"
#include "tests/support/faulty_calls.h"
#include "tests/support/test_folder.h"

#include <functional>
#include <random>

#include <fcntl.h>

namespace orvane::testing {

/// The folders of a session.
struct SessionHome : TestFolder
{
    SessionHome() : TestFolder(FastDisk())
    {
        for (const char* folder : {"site", "home", "home/state"})
            MakeFolder(folder);
    }
};

/// The disk with its troubles. Nothing outside of one folder is ever written.
class SessionDisk : public FaultyCalls
{
public:
    explicit SessionDisk(std::string folder) : m_folder(std::move(folder)) {}

    std::function<void(const std::string& to)> BeforeRename;

    Error Open(const std::string& path, int flags, mode_t mode, int& descriptor) override
    {
        const bool writes = (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0;
        return writes && !IsOurs(path) ? Refusal()
                                       : FaultyCalls::Open(path, flags, mode, descriptor);
    }
    Error Rename(const std::string& from, const std::string& to, unsigned flags) override
    {
        BeforeRename(to);
        return IsOurs(from) && IsOurs(to) ? FaultyCalls::Rename(from, to, flags) : Refusal();
    }

private:
    bool IsOurs(const std::string& path) const { return path.starts_with(m_folder); }
    static Error Refusal() { return std::make_error_code(std::errc::permission_denied); }

    std::string m_folder;
};

/// An author who answers and chooses by chance.
class SessionAuthor : public FakeDialogs
{
public:
    SessionAuthor(unsigned seed, const TestFolder& home) : m_chance(seed), m_home(home) {}

    /// A number from 0 to one less than `count`.
    std::size_t Pick(std::size_t count) { return m_chance() % count; }
    bool Does(std::size_t percent) { return Pick(100) < percent; }

    bool SavesNewPage = false; ///< the author has chosen a place for a new page

    void Say(TextView, Tone) override {}
    bool Ask(TextView, TextView) override { return Does(75); }
    std::optional<bool> AskOrCancel(TextView, TextView) override { return Does(75); }
    std::optional<Text> OpenFile(const FileRequest& request) override
    {
        return Choose(90,
                      request.Purpose == FolderPurpose::Recipes ? "site/mine.ovr" : "site/a.html");
    }
    std::vector<Text> OpenFiles(const FileRequest&) override { return {}; }
    std::optional<Text> SaveFile(const FileRequest& request) override
    {
        const bool isPage = request.Purpose == FolderPurpose::Pages;
        const auto chosen = Choose(80, isPage ? "site/new.html" : "site/mine.ovr");
        SavesNewPage = SavesNewPage || (isPage && chosen);
        return chosen;
    }
    std::optional<Text> PickFolder(TextView, TextView) override { return Choose(80, "site"); }
    std::optional<std::int32_t> PickColor() override { return std::nullopt; }
    FontChoice PickFont(const FontChoice& start) override { return start; }

private:
    std::optional<Text> Choose(std::size_t percent, const char* name)
    {
        return Does(percent) ? std::optional(m_home.TextAt(name)) : std::nullopt;
    }

    std::mt19937 m_chance;
    const TestFolder& m_home;
};

/// One run of the program on a disk that others have been on before.
struct SessionProgram
{
    SessionProgram(SystemCalls& calls, const TestFolder& home, Dialogs& dialogs)
        : Files(calls, home.TextAt("home/state")),
          Settings(Files, home.TextAt("home/settings")),
          Bench{.Core = Core,
                .Dialogs = dialogs,
                .Files = Files,
                .Settings = Settings,
                .Shell = Shell,
                .Clipboard = Clipboard,
                .Pane = Pane,
                .Help = Help,
                .Version = u"1.2.3",
                .StateFolder = home.TextAt("home/state"),
                .Today = [] { return Text(u"2024-05-31"); },
                .Clock = [] { return 45443.5; }}
    {
        Core.ProgramFolder = home.TextAt("home");
    }

    OrvaneCore Core;
    DiskFileStore Files;
    SettingsFile Settings;
    FakeShell Shell;
    FakeClipboard Clipboard;
    FakePreviewPane Pane;
    FakeHelpViewer Help;
    Workbench Bench;
    FormDesk Desk{Bench, nullptr};
};

} // namespace orvane::testing
