#pragma once

#include "windows/page_builder.h"

namespace orvane {

// Rows by which an author picks a file of a block, which lies beside the page then.

/// The words of such a row, and its button.
struct FileRowWords
{
    TextView Label;
    TextView Tip;
    ControlName Button;
    TextView Caption; ///< of the button
};

/// The controls of a picture: its name as the page has it, and three that take no row.
struct PictureControls
{
    ControlName Name;
    ControlName Source;
    ControlName Width;
    ControlName Height;
};

/// A row for a picture, whose Browse button fills all four controls. A file that cannot be read as
/// a picture is named to the author, and nothing changes.
FileNameBox* AddPicture(PageBuilder& page, const PictureControls& controls,
                        const FileRowWords& words);

/// A row for a sound, whose Browse button fills its box and the control `source`, which takes no
/// row. The author can empty it again.
void AddSound(PageBuilder& page, ControlName name, ControlName source, const FileRowWords& words);

} // namespace orvane
