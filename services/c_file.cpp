#include "services/c_file.h"

#include "core/file_names.h"

#include <iterator>

namespace orvane {

namespace {

constexpr TextView pageFilter =
    u"All Files (*.*)|*.*|Web page files (*.html, *.htm, *.shtml, *.asp, *.php, *.phtml)|"
    u"*.html;*.htm;*.shtml;*.asp;*.php;*.phtml|HTML files (*.html, *.htm)|*.html;*.htm|"
    u"ASP Files (*.asp)|*.asp|PHP Files (*.php, *.php3, *.phtml)|*.php;*.php3;*.phtml";
constexpr TextView imageFilter =
    u"All Files (*.*)|*.*|Graphics Files (*.jpeg, *.jpg, *.gif, *.png)|*.jpeg;*.jpg;*.gif;*.png|"
    u"GIF Files (*.gif)|*.gif|JPEG Files (*.jpeg, *.jpg)|*.jpeg;*.jpg";
constexpr TextView multimediaFilter =
    u"All Files (*.*)|*.*|"
    u"Multimedia files (*.wav, *.au, *.mid, *.swf, *.avi, *.mov, *.mpeg, *.mpg)|"
    u"*.wav;*.au;*.mid;*.swf;*.avi;*.mov;*.mpeg;*.mpg|WAV Files (*.wav)|*.wav|"
    u"AU Files (*.au)|*.au|MIDI Files (*.mid)|*.mid|Flash Files (*.swf)|*.swf|"
    u"Video Files (*.avi, *.mov, *.mpeg, *.mpg)|*.avi;*.mov;*.mpeg;*.mpg";
constexpr TextView javaFilter =
    u"All Files (*.*)|*.*|Java Class files (*.class)|*.class|Java Archive files (*.jar)|*.jar";
constexpr TextView textFilter = u"All Files (*.*)|*.*|Text Files (*.txt)|*.txt";
constexpr TextView programFilter = u"All Files (*.*)|*.*|EXE Files (*.exe)|*.exe";
constexpr TextView soundFilter =
    u"All Files (*.*)|*.*|WAV Files (*.wav)|*.wav|AU Files (*.au)|*.au|MIDI Files (*.mid)|*.mid";
constexpr TextView videoFilter =
    u"All Files (*.*)|*.*|Video Files (*.avi, *.mov, *.mpeg, *.mpg)|*.avi;*.mov;*.mpeg;*.mpg";

constexpr TextView filterCatalogue[] = {pageFilter, imageFilter,   multimediaFilter, javaFilter,
                                        textFilter, programFilter, soundFilter,      videoFilter};
constexpr std::int32_t ownFilterKind = 8;

} // namespace

TextView FileFilter(std::int32_t kind)
{
    const bool isCatalogued = kind >= 0 && kind < std::ssize(filterCatalogue);
    return isCatalogued ? filterCatalogue[kind] : TextView();
}

FileRequest CFile::Request(TextView title, TextView filter, TextView initDir) const
{
    return {.Title = Text(title),
            .Filter = Text(filter),
            .FilterIndex = FilterIndex,
            .InitDir = Text(initDir.empty() ? TextView(m_shared.LastFolder) : initDir)};
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
