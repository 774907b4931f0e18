#include "program/cli_pages.h"

#include "core/file_names.h"
#include "core/unified_difference.h"
#include "insertion/page_backups.h"

#include <filesystem>

namespace orvane {

namespace {

constexpr TextView pageMasks = u"*.html;*.htm";

bool IsHidden(TextView name)
{
    return name.starts_with(u'.');
}

/// Whether a file of this name is an earlier version of a page beside it.
bool IsBackup(TextView name)
{
    return name.starts_with(BackupPath({}));
}

bool IsLink(const Text& path)
{
    std::error_code error;
    return std::filesystem::is_symlink(std::filesystem::path(ToUtf8(path)), error);
}

} // namespace

Text FullPathOf(const CliWorld& world, TextView name)
{
    const std::filesystem::path path =
        std::filesystem::path(ToUtf8(world.CurrentFolder)) / std::filesystem::path(ToUtf8(name));
    return FromUtf8(path.lexically_normal().string());
}

std::optional<bool> AnswerOf(const CliRequest& request)
{
    if (request.Has("--replace"))
        return true;
    if (request.Has("--keep"))
        return false;
    return std::nullopt;
}

CliExit PageRun::Over(std::size_t skipped, const Work& work)
{
    const auto& names = m_request.Names();
    for (std::size_t i = skipped; i < names.size(); ++i)
        One(FullPathOf(m_world, names[i]), work);
    const Text masks = m_request.Value("--pattern").value_or(Text(pageMasks));
    for (const Text& folder : m_request.Values("--folder"))
        OverFolder(FullPathOf(m_world, folder), masks, work);
    return End();
}

CliExit PageRun::On(const Text& page, const Work& work)
{
    One(page, work);
    return End();
}

void PageRun::OverFolder(const Text& folder, const Text& masks, const Work& work)
{
    const auto folders = m_world.Files.SubFolders(folder);
    if (const Fault* fault = FaultIn(folders))
        return Fail(folder, Words(*fault));
    // Read before the first page is written, so that none comes twice.
    for (const Text& name : m_world.Files.Files(folder))
        if (MatchesMasks(name, masks) && !IsHidden(name) && !IsBackup(name))
            One(PathIn(folder, name), work);
    for (const Text& name : ValueIn(folders)) {
        const Text path = PathIn(folder, name);
        // A link may lead back up.
        if (!IsHidden(name) && !IsLink(path))
            OverFolder(path, masks, work);
    }
}

void PageRun::One(const Text& page, const Work& work)
{
    TellProgress(page);
    ++m_pages;
    CliDialogs dialogs(m_world, AnswerOf(m_request), page);
    const bool isDry = m_request.Has("--dry-run");
    UnwrittenFiles unwritten(m_world.Files);
    FileStore& files = isDry ? static_cast<FileStore&>(unwritten) : m_world.Files;
    PageEnd end = work(page, files, dialogs);
    if (const auto& question = dialogs.Unanswered(); question && end.Is != PageEnd::As::Failed)
        end = {PageEnd::As::Failed, Join({*question, u"  Say --replace or --keep."})};
    if (isDry)
        TellUnwritten(page, unwritten);
    else if (!end.Words.empty() && end.Is != PageEnd::As::Failed)
        m_world.Out(ToUtf8(Join({page, u": ", end.Words, u"\n"})));
    if (end.Is == PageEnd::As::Failed)
        Fail(page, end.Words);
    else if (end.Is == PageEnd::As::Written)
        ++m_written;
}

void PageRun::TellUnwritten(const Text& page, const UnwrittenFiles& files)
{
    for (const auto& [path, bytes] : files.Unwritten()) {
        if (!bytes || FolderOf(path) != FolderOf(page) || path == BackupPath(page))
            continue;
        const auto old = m_world.Files.Read(path);
        const bool isNew = FaultIn(old) != nullptr;
        if (path == page)
            m_world.Out(UnifiedDifference(isNew ? std::string() : ValueIn(old), *bytes,
                                          isNew ? "/dev/null" : ToUtf8(path), ToUtf8(path)));
        else if (isNew || ValueIn(old) != *bytes)
            m_world.Out(ToUtf8(Join({u"# copied: ", path, u"\n"})));
    }
}

void PageRun::Fail(const Text& path, TextView words)
{
    m_failures.emplace_back(path, words);
}

void PageRun::TellProgress(TextView page)
{
    if (!m_world.ShowsProgress)
        return;
    m_isProgressShown = true;
    m_world.Error("\r\x1B[K" + std::to_string(m_pages + 1) + " " + ToUtf8(Right(page, 60)));
}

CliExit PageRun::End()
{
    if (m_isProgressShown)
        m_world.Error("\r\x1B[K");
    for (const auto& [path, words] : m_failures)
        m_world.Error(ToUtf8(Join({u"orvane-cli: ", path, u": ", words, u"\n"})));
    if (m_pages == 0 && m_failures.empty())
        m_world.Error("orvane-cli: there is no page to work on\n");
    if (m_pages > 1 && !m_failures.empty())
        m_world.Error("orvane-cli: " + std::to_string(m_failures.size()) + " failed of " +
                      std::to_string(m_pages) + " pages\n");
    return m_failures.empty() && m_pages > 0 ? CliExit::Success : CliExit::Failed;
}

} // namespace orvane
