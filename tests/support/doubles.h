#pragma once

#include "core/file_names.h"
#include "core/workbench.h"

#include <gtest/gtest.h>

#include <deque>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace orvane::testing {

/// Messages, paths or names, in order.
using Texts = std::vector<Text>;

/// Dialogs that give prepared answers and record what was asked. A question or dialog without a
/// prepared answer fails the test at once, an answer that was not used fails it at the end.
class FakeDialogs : public Dialogs
{
public:
    ~FakeDialogs() override;

    /// Prepares the answer to the next question, which must have these words; for AskOrCancel()
    /// nothing is Cancel.
    void ExpectAsk(Text words, bool answer) { ExpectAskOrCancel(std::move(words), answer); }
    void ExpectAskOrCancel(Text words, std::optional<bool> answer)
    {
        m_questions.push_back({std::move(words), answer});
    }
    Texts Said; ///< the words of every Say(), in order

    /// What was said since the last call; empties `Said`.
    Texts TakeSaid() { return std::exchange(Said, {}); }

    /// These prepare the answer to the next dialog of their kind; nothing is Cancel. OpenFiles()
    /// takes all paths that are prepared for OpenFile().
    void AnswerOpenFile(std::optional<Text> path) { m_openFiles.push_back(std::move(path)); }
    void AnswerSaveFile(std::optional<Text> path) { m_saveFiles.push_back(std::move(path)); }
    void AnswerFolder(std::optional<Text> path) { m_folders.push_back(std::move(path)); }
    void AnswerColor(std::optional<std::int32_t> color) { m_colors.push_back(color); }
    void AnswerFont(const FontChoice& font) { m_fonts.push_back(font); }
    void AnswerBox(const PageBoxReply& reply) { m_boxes.push_back(reply); }

    Texts Asked;                        ///< the words of every question
    Texts Titles;                       ///< the titles of every question
    std::vector<FileRequest> Requests;  ///< of every file dialog
    std::vector<FontChoice> FontStarts; ///< of every font dialog
    std::vector<PageBox> Boxes;         ///< of every page box
    Tone LastTone = Tone::Plain;
    int WorkGoesOn = std::numeric_limits<int>::max(); ///< calls of GoOn() until the author cancels

    void Say(TextView words, Tone tone) override;
    bool Ask(TextView words, TextView title) override;
    std::optional<bool> AskOrCancel(TextView words, TextView title) override;
    std::optional<Text> OpenFile(const FileRequest& request) override;
    std::vector<Text> OpenFiles(const FileRequest& request) override;
    std::optional<Text> SaveFile(const FileRequest& request) override;
    std::optional<Text> PickFolder(TextView title, TextView start) override;
    std::optional<std::int32_t> PickColor() override;
    FontChoice PickFont(const FontChoice& start) override;
    std::unique_ptr<Progress> FollowWork(TextView words) override;
    PageBoxReply Answer(const PageBox& box) override;

private:
    template <class Value>
    Value Next(std::deque<Value>& script, const char* what, Value otherwise);

    struct Question
    {
        Text Words;
        std::optional<bool> Reply;
    };
    std::deque<Question> m_questions;
    std::deque<std::optional<Text>> m_openFiles;
    std::deque<std::optional<Text>> m_saveFiles;
    std::deque<std::optional<Text>> m_folders;
    std::deque<std::optional<std::int32_t>> m_colors;
    std::deque<FontChoice> m_fonts;
    std::deque<PageBoxReply> m_boxes;
};

/// A disk in memory that records what is read, written and removed, and that can be told to fail at
/// a given call or path.
class FakeFileStore : public FileStore
{
public:
    std::map<Text, std::string> Contents;
    std::set<Text> Folders;
    std::set<Text> Private; ///< every path that was to be written for its owner alone
    Texts Writes;           ///< every path that was to be written, in order, failed or not
    Texts Removals;         ///< every path that was to be removed, in order
    mutable Texts Reads;    ///< every path that was to be read, in order

    /// Makes the call with this number fail with this fault. Counted from 1 are reads, writes,
    /// removals, MakeFolder() and SubFolders(); a Copy() is a read and a write.
    void FailAt(int call, Fault fault) { m_faultAt[call] = fault; }
    /// Makes each of these calls with this path fail with this fault.
    void FailOn(TextView path, Fault fault) { m_faultOn[Text(path)] = fault; }

    /// The number of such calls so far.
    int Calls() const { return m_calls; }

    bool FileExists(TextView path) const override { return Contents.contains(Text(path)); }
    bool IsTaken(TextView path) const override { return FileExists(path); }
    Outcome<bool> IsCopyOf(TextView path, TextView other, std::string_view bytes) const override;
    std::optional<FileFacts> Facts(TextView path) const override;
    Outcome<std::string> Read(TextView path) const override;
    Outcome<std::string> ReadItself(TextView path) const override { return Read(path); }
    Done Replace(TextView path, std::string_view bytes) override;
    Outcome<bool> Exchange(TextView path, std::string_view old, std::string_view bytes,
                           std::string_view rest = {}) override;
    Done PutNew(TextView path, std::string_view bytes, TextView) override
    {
        return Replace(path, bytes);
    }
    Done PutPrivate(TextView path, std::string_view bytes) override
    {
        Private.emplace(path);
        return Replace(path, bytes);
    }
    Outcome<bool> PutIfFree(TextView path, std::string_view bytes, TextView) override;
    Done Copy(TextView from, TextView to, Progress* progress) override;
    Done Remove(TextView path) override;
    Done MakeFolder(TextView path, Access access) override;
    std::shared_ptr<const void> LockFolder(TextView) override { return nullptr; }
    Texts Files(TextView folder) const override;
    Outcome<Texts> SubFolders(TextView folder) const override;
    bool FolderExists(TextView path) const override { return Folders.contains(Text(path)); }

private:
    std::optional<Fault> NextFault(TextView path) const;
    Fault MissingFault(TextView path) const;

    mutable int m_calls = 0;
    std::map<int, Fault> m_faultAt;
    std::map<Text, Fault> m_faultOn;
};

/// Settings in memory.
class FakeSettings : public Settings
{
public:
    std::map<std::tuple<Text, Text, Text>, Text> Stored; ///< by application, section, key
    Texts Writes;                                        ///< "section/key" of every Put()

    Text Get(TextView section, TextView key, TextView otherwise,
             TextView application) const override;
    void Put(TextView section, TextView key, TextView value, TextView application) override;
};

/// A desktop that records what was opened, and which programs were started with which argument.
class FakeShell : public Shell
{
public:
    Texts Opened;
    std::vector<std::pair<Text, Text>> Started;
    bool Starts = true;          ///< what Start() gives
    std::optional<Text> Browser; ///< what DefaultBrowser() gives

    void OpenWithShell(TextView target) override { Opened.emplace_back(target); }
    bool Start(TextView program, TextView argument) override
    {
        Started.emplace_back(program, argument);
        return Starts;
    }
    std::optional<Text> DefaultBrowser() override { return Browser; }
};

/// A clipboard that keeps the last text.
class FakeClipboard : public Clipboard
{
public:
    Text Content;
    void Put(TextView text) override { Content = text; }
};

/// A preview pane that records the pages that it was to show.
class FakePreviewPane : public PreviewPane
{
public:
    Texts Navigated;
    std::vector<PanePage> Pages;
    bool IsLoaded = false;   ///< what IsReady() gives
    bool IsFileLeft = false; ///< whether LeaveFile() was called
    bool IsReady() const override { return IsLoaded; }
    Done Navigate(const PanePage& page) override
    {
        Navigated.push_back(page.Path);
        Pages.push_back(page);
        if (Loaded)
            Loaded();
        return {};
    }
    std::vector<LivePage> Live;
    void ShowLive(const LivePage& page) override { Live.push_back(page); }
    void LeaveFile() override { IsFileLeft = true; }
    void Clear() override {}
};

/// A help viewer that records the topics that it was to show.
class FakeHelpViewer : public HelpViewer
{
public:
    std::vector<int> Shown;
    void ShowTopic(int number) override { Shown.push_back(number); }
};

/// A workbench of doubles, with "/program" as the program's folder.
struct FakeDesk
{
    OrvaneCore Core;
    FakeDialogs Dialogs;
    FakeFileStore Files;
    FakeSettings Settings;
    FakeShell Shell;
    FakeClipboard Clipboard;
    FakePreviewPane Pane;
    FakeHelpViewer Help;
    Workbench Bench{.Core = Core,
                    .Dialogs = Dialogs,
                    .Files = Files,
                    .Settings = Settings,
                    .Shell = Shell,
                    .Clipboard = Clipboard,
                    .Pane = Pane,
                    .Help = Help,
                    .Version = u"1.2.3",
                    .StateFolder = u"/state",
                    .Today = [] { return Text(u"2024-05-31"); },
                    .Clock = [] { return 45443.5; }};

    FakeDesk() { Core.ProgramFolder = u"/program"; }
};

} // namespace orvane::testing
