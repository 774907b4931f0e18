#include "preview/live_page.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "insertion/page_encoding.h"
#include "insertion/page_script.h"
#include "preview/preview_note.h"
#include "preview/preview_page.h"

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr TextView withScript = u"Shown as with 'Make it run in today's browsers'.";
constexpr TextView noPlace = u"Auto-insert finds no place for the special effect in this page, so "
                             u"it is shown in an empty one.";

/// The files that a page with the effect finds beside it, wherever they lie now.
std::vector<PaneFile> FilesOf(const FinishedPayload& payload, TextView programFolder)
{
    const EffectPayload& effect = payload.Effect;
    std::vector<PaneFile> files;
    // First, since the folder may hold what an earlier effect made under that name.
    for (const MadeFile& made : effect.MadeFiles)
        if (!made.IsSecret)
            files.push_back({made.Name, {}, made.Bytes});
    for (std::size_t i = 0; i < effect.Required.RequiredFileNames.size(); ++i)
        if (const Text& source = effect.Required.RequiredFileSources[i]; !source.empty())
            files.push_back({effect.Required.RequiredFileNames[i], source});
    for (const Text& name : effect.SupportFiles)
        if (!name.empty() && !EndsWithIgnoringCase(name, u".cgi"))
            files.push_back({name, PathIn(programFolder, name)});
    if (payload.WantsPageScript)
        files.push_back({Text(pageScriptFile), PathIn(programFolder, pageScriptFile)});
    return files;
}

/// A comment's text, without what makes it one.
Text InsideOf(TextView comment)
{
    constexpr std::size_t opening = 4, closing = 3;
    return comment.size() < opening + closing
               ? Text()
               : Text(comment.substr(opening, comment.size() - opening - closing));
}

LivePage EmptyPage(const FinishedPayload& payload)
{
    LivePage page = PictureOf(std::nullopt);
    std::string bytes =
        EncodeForPage(PreviewPageText(payload, PreviewMode::Live), PageEncoding::Windows1252);
    page.Bytes = payload.WantsPageScript ? WithPageScript(bytes) : std::move(bytes);
    return page;
}

/// The author's page with the effect; an empty one, with words on why, where that does not go.
LivePicture InHost(const FinishedPayload& payload, const HostPage& host)
{
    PageEdit edit = EditPageAndScript(host.Bytes, payload, [] { return true; });
    if (auto* edited = std::get_if<EditedPage>(&edit)) {
        LivePage page = PictureOf(HostPage{host.Path, {}});
        page.Bytes = std::move(edited->Bytes.append(edited->RestOf(host.Bytes)));
        return {std::move(page), {}};
    }
    Text why(noPlace);
    if (const Fault* fault = std::get_if<Fault>(&edit))
        why += Join({u"  (", Words(*fault), u")"});
    return {EmptyPage(payload), std::move(why)};
}

/// Gives the picture what the effect in it needs, and the words on it.
void AddEffect(LivePicture& picture, const FinishedPayload& payload, const FileStore& files,
               TextView programFolder)
{
    LivePage& page = picture.Page;
    page.Files = FilesOf(payload, programFolder);
    page.Mark = InsideOf(payload.BeginMarker);
    page.RunsInStatus = RunsInStatus(payload);
    page.Note = PreviewNote(payload, [&](const Text& name) {
        const auto file = std::ranges::find(page.Files, name, &PaneFile::Name);
        if (file != page.Files.end())
            return file->Path.empty() || files.FileExists(file->Path);
        return !page.Folder.empty() && files.FileExists(PathIn(page.Folder, name));
    });
    if (picture.Line.empty() && HasPageScript(page.Bytes))
        picture.Line = withScript;
}

} // namespace

void HostFile::GoTo(TextView path)
{
    *this = HostFile();
    if (!path.empty())
        m_page = HostPage{Text(path), {}};
}

void HostFile::Read(const FileStore& files)
{
    if (!m_page)
        return;
    const auto facts = files.Facts(m_page->Path);
    m_isGone = !facts;
    if (!facts || facts == m_facts)
        return;
    const auto bytes = files.Read(m_page->Path);
    m_isGone = FaultIn(bytes) != nullptr;
    if (m_isGone)
        return;
    m_page->Bytes = ValueIn(bytes);
    m_facts = facts;
}

LivePicture PictureOf(const EffectPayload& effect, const std::optional<HostPage>& host,
                      const FileStore& files, TextView programFolder)
{
    FinishedPayload payload = Finish(effect);
    payload.WantsPageScript = !effect.IsBlock && !RowOf(effect.Kind).RunsByItself;
    LivePicture picture = host ? InHost(payload, *host) : LivePicture{EmptyPage(payload), {}};
    AddEffect(picture, payload, files, programFolder);
    return picture;
}

LivePicture PictureWith(const FinishedPayload& payload, const HostPage& edited,
                        const FileStore& files, TextView programFolder)
{
    LivePicture picture{PictureOf(edited), {}};
    AddEffect(picture, payload, files, programFolder);
    return picture;
}

LivePage PictureOf(const std::optional<HostPage>& host)
{
    if (!host)
        return {.Name = Text(panePageName)};
    const TextView folder = FolderOf(host->Path);
    return {.Name = Text(GetFileName(host->Path)), .Bytes = host->Bytes, .Folder = Text(folder)};
}

} // namespace orvane
