#include "services/file_requests.h"

#include <iterator>

namespace orvane {

namespace {

constexpr TextView pageFilter =
    u"All Files (*.*)|*.*|Web page files (*.html, *.htm, *.shtml, *.asp, *.php, *.phtml)|"
    u"*.html;*.htm;*.shtml;*.asp;*.php;*.phtml|HTML files (*.html, *.htm)|*.html;*.htm|"
    u"ASP Files (*.asp)|*.asp|PHP Files (*.php, *.php3, *.phtml)|*.php;*.php3;*.phtml";
constexpr TextView graphicsFilter =
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

constexpr TextView filterCatalogue[] = {pageFilter, graphicsFilter, multimediaFilter, javaFilter,
                                        textFilter, programFilter,  soundFilter,      videoFilter};

constexpr TextView linkedPageFilter =
    u"All Files (*.*)|*.*|HTML Files (*.htm, *.html)|*.htm;*.html";

} // namespace

TextView FileFilter(std::int32_t kind)
{
    const bool isCatalogued = kind >= 0 && kind < std::ssize(filterCatalogue);
    return isCatalogued ? filterCatalogue[kind] : TextView();
}

FileRequest BrowseRequest(std::int32_t kind, FolderPurpose purpose)
{
    return {.Title = u"Browse", .Filter = Text(FileFilter(kind)), .Purpose = purpose};
}

FileRequest BlockSoundRequest()
{
    return {.Title = u"Browse",
            .Filter = u"All Files (*.*)|*.*|Sound Files (*.mp3, *.m4a, *.ogg, *.wav)|"
                      u"*.mp3;*.m4a;*.ogg;*.wav",
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Sounds};
}

FileRequest ImageRequest()
{
    return {.Title = u"Browse...",
            .Filter = Text(imageFilter),
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Images};
}

FileRequest WebPageRequest()
{
    return {.Title = u"Browse...",
            .Filter = Text(linkedPageFilter),
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Links};
}

} // namespace orvane
