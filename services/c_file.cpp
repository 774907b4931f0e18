#include "services/c_file.h"

#include "core/file_names.h"
#include "services/file_requests.h"

namespace orvane {

namespace {

constexpr std::int32_t ownFilterKind = 8;

} // namespace

FileRequest CFile::Request(TextView title, TextView filter, TextView initDir) const
{
    const bool goesOn = initDir.empty() && Purpose == FolderPurpose::Other;
    return {.Title = Text(title),
            .Filter = Text(filter),
            .FilterIndex = FilterIndex,
            .InitDir = Text(goesOn ? TextView(m_shared.LastFolder) : initDir),
            .Purpose = Purpose};
}

Outcome<Text> CFile::Store(const Text& picked)
{
    PathAndFilename = picked;
    Filename = GetFileName(picked);
    const Outcome<Text> path = GetPath(picked);
    if (FaultIn(path))
        return path;
    Path = ValueIn(path);
    m_shared.LastFolder = FolderOf(picked);
    return picked;
}

Outcome<Text> CFile::GetFileNameForSave()
{
    const auto picked = m_dialogs.SaveFile(Request(u"Save...", Filter, InitDir));
    if (!picked && CancelError)
        return Text();
    return Store(picked.value_or(Text()));
}

Done CFile::Browse()
{
    FileRequest request = Request(DialogTitle, Filter, InitDir);
    request.FileName = Filename;
    if (const auto picked = m_dialogs.OpenFile(request)) {
        const Outcome<Text> stored = Store(*picked);
        if (const Fault* fault = FaultIn(stored))
            return *fault;
    }
    return {};
}

Outcome<Text> CFile::BrowseForFile(std::int32_t kind)
{
    const bool isOwn = kind == ownFilterKind;
    FileRequest request =
        Request(DialogTitle, isOwn ? TextView(Filter) : FileFilter(kind), isOwn ? InitDir : Text());
    request.FilterIndex = 1;
    if (const auto picked = m_dialogs.OpenFile(request))
        return Store(*picked);
    return Text();
}

Text CFile::GetFileName(TextView path)
{
    return Text(orvane::GetFileName(path));
}

Outcome<Text> CFile::GetPath(TextView path)
{
    const TextView folder = FolderOf(path);
    if (folder.empty())
        return Fault::InvalidProcedureCall;
    return Text(Left(folder, folder.size() - 1));
}

} // namespace orvane
