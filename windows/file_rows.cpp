#include "windows/file_rows.h"

#include "core/file_names.h"
#include "core/percents.h"
#include "services/block_pictures.h"
#include "services/file_requests.h"
#include "windows/field_controls.h"
#include "windows/picture.h"

#include <utility>

namespace orvane {

namespace {

FileNameBox* AddFile(PageBuilder& page, ControlName name, const FileRowWords& words,
                     FileRequest request, std::function<void(const Text& path)> take)
{
    return page.LockedBrowseRow(name, words.Label, words.Tip,
                                {.Button = words.Button,
                                 .Caption = words.Caption,
                                 .Request = std::move(request),
                                 .Instead = std::move(take)});
}

} // namespace

FileNameBox* AddPicture(PageBuilder& page, const PictureControls& controls,
                        const FileRowWords& words)
{
    for (const ControlName hidden : {controls.Source, controls.Width, controls.Height})
        page.HiddenText(hidden);
    const auto take = [all = page.Page(), &bench = page.Bench(), controls](const Text& path) {
        const PickedImage image = Measured(path);
        if (!image.Size)
            return bench.Dialogs.Say(
                Join({u"Orvane can't read this image:\r\n", GetFileName(path)}));
        const BlockPicture picture = PictureOf(image);
        FieldControls fields(*all->window());
        fields.Write(controls.Source, picture.Source);
        fields.Write(controls.Width, picture.Width);
        fields.Write(controls.Height, picture.Height);
        fields.Write(controls.Name, picture.Address);
    };
    return AddFile(page, controls.Name, words, BrowseRequest(imageFiles, FolderPurpose::Images),
                   take);
}

void AddSound(PageBuilder& page, ControlName name, ControlName source, const FileRowWords& words)
{
    page.HiddenText(source);
    const auto take = [all = page.Page(), name, source](const Text& path) {
        FieldControls fields(*all->window());
        fields.Write(source, path);
        fields.Write(name, WithPercents(GetFileName(path)));
    };
    AddFile(page, name, words, BlockSoundRequest(), take)->LetBeEmptied();
}

} // namespace orvane
