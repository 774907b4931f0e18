#include "effects/applet/animation_project.h"

#include "core/file_names.h"
#include "insertion/page_encoding.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr TextView projectFilter = u"All Files (*.*)|*.*|Orvane Animation (*.ovn)|*.ovn";

/// The rows whose texts a project file can carry.
constexpr std::size_t filledRows = 31;

/// The rows that a list can number; a file of bars alone would fill the memory otherwise.
constexpr std::size_t numberedRows = 32767;

/// A larger file is none that a person made with this program.
constexpr std::size_t sizeLimit = 4 << 20;

/// The texts of one column, joined by bars.
Text Joined(const std::vector<ImageRow>& rows, Text ImageRow::*field, TextView otherwise)
{
    std::vector<Text> values;
    for (const ImageRow& row : rows)
        values.emplace_back((row.*field).empty() ? otherwise : TextView(row.*field));
    return Listed(values, u"|");
}

Text JoinedTransitions(const std::vector<ImageRow>& rows)
{
    // Stays as it is: "Random" with a capital writes what the row before it wrote.
    Text before;
    std::vector<Text> values;
    for (const ImageRow& row : rows) {
        if (row.Transition != u"Random")
            before = row.Transition.empty() ? Text(u"null") : row.Transition;
        values.push_back(before);
    }
    return Listed(values, u"|");
}

std::string Encode(TextView record)
{
    if (const auto bytes = Windows1252Bytes(record))
        return *bytes;
    return std::string(byteOrderMark) + ToUtf8(record);
}

Text Decode(std::string_view bytes)
{
    if (bytes.starts_with(byteOrderMark))
        return FromUtf8(bytes.substr(byteOrderMark.size()));
    return FromWindows1252(bytes);
}

/// Reads the texts of a record one after the other; behind the end they are empty.
class RecordReader
{
public:
    explicit RecordReader(TextView record) : m_rest(record) {}

    TextView Next()
    {
        m_rest.remove_prefix(std::min(m_rest.find_first_not_of(u' '), m_rest.size()));
        const bool isQuoted = m_rest.starts_with(u'"');
        if (isQuoted)
            m_rest.remove_prefix(1);
        const TextView field = Take(isQuoted ? u"\"" : u",\r\n");
        Take(u",\r\n"); // what stands between a closing quote and the separator
        SkipSeparator();
        return field;
    }

private:
    /// What stands before the first of these characters.
    TextView Take(TextView ends)
    {
        const TextView taken = m_rest.substr(0, m_rest.find_first_of(ends));
        m_rest.remove_prefix(taken.size());
        return taken;
    }

    void SkipSeparator()
    {
        const std::size_t size = m_rest.starts_with(lineEnd) ? 2 : 1;
        m_rest.remove_prefix(std::min(size, m_rest.size()));
    }

    TextView m_rest;
};

/// Puts the pieces between the bars into one column; pieces without a row are lost.
void Split(TextView joined, std::vector<ImageRow>& rows, Text ImageRow::*field)
{
    const std::size_t count = std::min(rows.size(), filledRows);
    for (std::size_t i = 0; i < count; ++i)
        rows[i].*field = TakeUntil(joined, u'|');
}

FileRequest ProjectRequest(TextView title)
{
    return {.Title = Text(title),
            .Filter = Text(projectFilter),
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Projects};
}

/// Writes the animation to a file, which is the project's own from then on. A failure says nothing
/// and gives false; the file is then as it was.
bool Write(AnimationProject& project, const Text& path, FileStore& files)
{
    std::string bytes = ProjectBytes(project.Animation);
    if (FaultIn(files.Replace(path, bytes)) != nullptr)
        return false;
    project.Path = path;
    project.Saved = std::move(bytes);
    return true;
}

} // namespace

std::string ProjectBytes(const AdvancedAnimator& animator)
{
    const std::vector<ImageRow>& rows = animator.Rows;
    const std::array<Text, 9> fields = {
        animator.AnimationWidth,
        animator.AnimationHeight,
        animator.BackgroundColor.empty() ? Text(u"NULL") : animator.BackgroundColor,
        animator.LoopCount.empty() ? Text(u"0 - Infinite") : animator.LoopCount,
        Joined(rows, &ImageRow::FileName, u""),
        Joined(rows, &ImageRow::Pause, u"100"),
        Joined(rows, &ImageRow::Sound, u"null"),
        JoinedTransitions(rows),
        Joined(rows, &ImageRow::URL, u"null"),
    };
    return Encode(Join({u"\"", Listed(fields, u"\",\""), u"\"", lineEnd}));
}

AdvancedAnimator ReadProject(std::string_view bytes)
{
    const Text record = Decode(bytes);
    RecordReader reader(record);
    std::array<TextView, 9> fields;
    for (TextView& field : fields)
        field = reader.Next();
    const auto& [width, height, background, loop, images, pauses, sounds, transitions, urls] =
        fields;
    AdvancedAnimator animator{.AnimationWidth = Text(width),
                              .AnimationHeight = Text(height),
                              .LoopCount = Text(loop),
                              .BackgroundColor = Text(background == u"NULL" ? u"" : background)};
    const auto bars = static_cast<std::size_t>(std::count(images.begin(), images.end(), u'|'));
    animator.Rows.resize(std::min(bars + 1, numberedRows));
    Split(images, animator.Rows, &ImageRow::FileName);
    Split(pauses, animator.Rows, &ImageRow::Pause);
    Split(sounds, animator.Rows, &ImageRow::Sound);
    Split(transitions, animator.Rows, &ImageRow::Transition);
    Split(urls, animator.Rows, &ImageRow::URL);
    return animator;
}

std::optional<Complaint> CheckProject(const AdvancedAnimator& animator)
{
    if (animator.Rows.empty())
        return Complaint{u"You must enter an image into the Animation Image List.", ""};
    if (animator.AnimationWidth.empty() || animator.AnimationHeight.empty())
        return Complaint{u"Please enter the animation width and height properties.", ""};
    return std::nullopt;
}

AnimationProject UnnamedProject(const AdvancedAnimator& animation)
{
    return {.Animation = animation, .Path = {}, .Saved = ProjectBytes(animation)};
}

bool IsModified(const AnimationProject& project)
{
    return ProjectBytes(project.Animation) != project.Saved;
}

bool SaveProjectAs(AnimationProject& project, Dialogs& dialogs, FileStore& files)
{
    FileRequest request = ProjectRequest(u"Save As");
    request.InitDir = FolderOf(project.Path);
    request.FileName = GetFileName(project.Path);
    const auto path = dialogs.SaveFile(request);
    return path && Write(project, *path, files);
}

bool SaveProject(AnimationProject& project, Dialogs& dialogs, FileStore& files)
{
    return project.Path.empty() ? SaveProjectAs(project, dialogs, files)
                                : Write(project, Text(project.Path), files);
}

AnimationProject OpenProject(const AnimationProject& project, Dialogs& dialogs,
                             const FileStore& files)
{
    if (const auto path = dialogs.OpenFile(ProjectRequest(u"Open")))
        return LoadProject(project, *path, dialogs, files);
    AnimationProject emptied = project;
    emptied.Animation.Rows.clear();
    return emptied;
}

AnimationProject LoadProject(const AnimationProject& project, TextView path, Dialogs& dialogs,
                             const FileStore& files)
{
    const auto bytes = files.Read(path);
    const Fault* fault = FaultIn(bytes);
    if (fault ? *fault == Fault::OutOfMemory : ValueIn(bytes).size() > sizeLimit) {
        dialogs.Say(u"This file is larger than 4 MB, which is too large for a project.");
        return project;
    }
    AnimationProject opened =
        UnnamedProject(ReadProject(fault ? std::string_view() : ValueIn(bytes)));
    opened.Animation.Required = project.Animation.Required;
    if (fault == nullptr)
        opened.Path = path;
    return opened;
}

AnimationProject NewProject(const AnimationProject& project, Dialogs& dialogs, TextView caption)
{
    if (!dialogs.AskOrCancel(u"Do you want to start a new animation?", caption).value_or(false))
        return project;
    return UnnamedProject(
        {.LoopCount = project.Animation.LoopCount, .Required = project.Animation.Required});
}

} // namespace orvane
