#include "tests/support/doubles.h"

#include <algorithm>

namespace orvane::testing {

FakeDialogs::~FakeDialogs()
{
    EXPECT_TRUE(m_questions.empty()) << "expected but never asked: "
                                     << ToUtf8(m_questions.empty() ? Text() : m_questions[0].Words);
    EXPECT_TRUE(m_openFiles.empty() && m_saveFiles.empty() && m_folders.empty() &&
                m_colors.empty() && m_fonts.empty() && m_boxes.empty())
        << "an answer was prepared for a dialog that never came";
}

template <class Value>
Value FakeDialogs::Next(std::deque<Value>& script, const char* what, Value otherwise)
{
    if (script.empty()) {
        ADD_FAILURE() << "nobody expected a dialog: " << what;
        return otherwise;
    }
    Value value = script.front();
    script.pop_front();
    return value;
}

void FakeDialogs::Say(TextView words, Tone tone)
{
    Said.emplace_back(words);
    LastTone = tone;
}

bool FakeDialogs::Ask(TextView words, TextView title)
{
    return AskOrCancel(words, title).value_or(false);
}

std::optional<bool> FakeDialogs::AskOrCancel(TextView words, TextView title)
{
    Asked.emplace_back(words);
    Titles.emplace_back(title);
    const Question question = Next(m_questions, ToUtf8(words).c_str(), Question());
    EXPECT_EQ(ToUtf8(question.Words), ToUtf8(words));
    return question.Reply;
}

std::optional<Text> FakeDialogs::OpenFile(const FileRequest& request)
{
    Requests.push_back(request);
    return Next(m_openFiles, "open file", std::optional<Text>());
}

std::vector<Text> FakeDialogs::OpenFiles(const FileRequest& request)
{
    Texts paths;
    do {
        if (const auto path = OpenFile(request))
            paths.push_back(*path);
    } while (!m_openFiles.empty());
    return paths;
}

std::optional<Text> FakeDialogs::SaveFile(const FileRequest& request)
{
    Requests.push_back(request);
    return Next(m_saveFiles, "save file", std::optional<Text>());
}

std::optional<Text> FakeDialogs::PickFolder(TextView, TextView)
{
    return Next(m_folders, "pick folder", std::optional<Text>());
}

std::optional<std::int32_t> FakeDialogs::PickColor()
{
    return Next(m_colors, "pick color", std::optional<std::int32_t>());
}

FontChoice FakeDialogs::PickFont(const FontChoice& start)
{
    FontStarts.push_back(start);
    return Next(m_fonts, "pick font", start);
}

std::unique_ptr<Progress> FakeDialogs::FollowWork(TextView)
{
    struct FakeProgress : Progress
    {
        explicit FakeProgress(int& left) : Left(left) {}
        bool GoOn(std::uint64_t, std::uint64_t) override { return Left-- > 0; }
        int& Left;
    };
    return std::make_unique<FakeProgress>(WorkGoesOn);
}

PageBoxReply FakeDialogs::Answer(const PageBox& box)
{
    Boxes.push_back(box);
    return Next(m_boxes, "page box", PageBoxReply());
}

std::optional<Fault> FakeFileStore::NextFault(TextView path) const
{
    ++m_calls;
    if (const auto found = m_faultAt.find(m_calls); found != m_faultAt.end())
        return found->second;
    if (const auto found = m_faultOn.find(Text(path)); found != m_faultOn.end())
        return found->second;
    return std::nullopt;
}

Fault FakeFileStore::MissingFault(TextView path) const
{
    const TextView folder = FolderOf(path);
    return Folders.empty() || Folders.contains(Text(Left(folder, folder.size() - 1)))
               ? Fault::FileNotFound
               : Fault::PathNotFound;
}

Outcome<std::string> FakeFileStore::Read(TextView path) const
{
    Reads.emplace_back(path);
    if (const auto fault = NextFault(path))
        return *fault;
    const auto found = Contents.find(Text(path));
    if (found == Contents.end())
        return MissingFault(path);
    return found->second;
}

Outcome<bool> FakeFileStore::IsCopyOf(TextView path, TextView other, std::string_view bytes) const
{
    const auto read = Read(path);
    if (const Fault* fault = FaultIn(read))
        return *fault;
    return path != other && ValueIn(read) == bytes;
}

Done FakeFileStore::Replace(TextView path, std::string_view bytes)
{
    Writes.emplace_back(path);
    if (const auto fault = NextFault(path))
        return *fault;
    Contents[Text(path)] = bytes;
    return {};
}

Outcome<bool> FakeFileStore::Exchange(TextView path, std::string_view old, std::string_view bytes,
                                      std::string_view rest)
{
    const auto found = Contents.find(Text(path));
    if (found == Contents.end() || found->second != old)
        return false;
    const Done done = Replace(path, Join({bytes, rest}));
    if (const Fault* fault = FaultIn(done))
        return *fault;
    return true;
}

Outcome<bool> FakeFileStore::PutIfFree(TextView path, std::string_view bytes, TextView)
{
    if (IsTaken(path))
        return false;
    const Done done = Replace(path, bytes);
    if (const Fault* fault = FaultIn(done))
        return *fault;
    return true;
}

std::optional<FileFacts> FakeFileStore::Facts(TextView path) const
{
    const auto found = Contents.find(Text(path));
    if (found == Contents.end())
        return std::nullopt;
    return FileFacts{.Size = found->second.size(),
                     .Number = std::hash<std::string>{}(found->second)};
}

Done FakeFileStore::Copy(TextView from, TextView to, Progress* progress)
{
    const auto bytes = Read(from);
    if (const Fault* fault = FaultIn(bytes))
        return *fault;
    if (progress != nullptr && !progress->GoOn(0, ValueIn(bytes).size()))
        return Fault::Cancelled;
    return Replace(to, ValueIn(bytes));
}

Done FakeFileStore::Remove(TextView path)
{
    Removals.emplace_back(path);
    if (const auto fault = NextFault(path))
        return *fault;
    if (Contents.erase(Text(path)) == 0)
        return MissingFault(path);
    return {};
}

Done FakeFileStore::MakeFolder(TextView path, Access)
{
    if (const auto fault = NextFault(path))
        return *fault;
    if (!Folders.insert(Text(path)).second)
        return Fault::PathFileAccess;
    return {};
}

static std::vector<Text> NamesIn(TextView folder, const auto& paths)
{
    std::vector<Text> names;
    for (const Text& path : paths)
        if (FolderOf(path) == WithSeparator(folder))
            names.emplace_back(GetFileName(path));
    std::sort(names.begin(), names.end(),
              [](const Text& a, const Text& b) { return ToLower(a) < ToLower(b); });
    return names;
}

std::vector<Text> FakeFileStore::Files(TextView folder) const
{
    std::vector<Text> paths;
    for (const auto& [path, bytes] : Contents)
        paths.push_back(path);
    return NamesIn(folder, paths);
}

Outcome<std::vector<Text>> FakeFileStore::SubFolders(TextView folder) const
{
    if (const auto fault = NextFault(folder))
        return *fault;
    return NamesIn(folder, Folders);
}

Text FakeSettings::Get(TextView section, TextView key, TextView otherwise,
                       TextView application) const
{
    const auto found = Stored.find({Text(application), Text(section), Text(key)});
    return found == Stored.end() ? Text(otherwise) : found->second;
}

void FakeSettings::Put(TextView section, TextView key, TextView value, TextView application)
{
    Writes.push_back(Join({section, u"/", key}));
    Stored[{Text(application), Text(section), Text(key)}] = value;
}

} // namespace orvane::testing
