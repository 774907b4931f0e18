#pragma once

#include "core/dialogs.h"
#include "core/workbench.h"
#include "services/recorded_files.h"
#include "windows/controls.h"

#include <functional>
#include <optional>

class QLineEdit;
class QPushButton;

namespace orvane {

/// The button beside a field, and what a file must be to go into the field.
struct BrowseRule
{
    ControlName Button;
    TextView Caption;
    FileRequest Request;
    /// Where the dialog starts; the folder of the picked file is stored there. Null: as the request
    /// says.
    Text OrvaneCore::*Folder = nullptr;
    std::optional<FileRole> NoBlanks = {}; ///< a name with a blank is refused, for such a file
    std::optional<std::size_t> Slot = {};  ///< of the files to copy, where the source is recorded
    /// Called with a picked path before anything is set; false refuses it. Null admits all.
    std::function<bool(const Text& path)> Admits = {};
    /// Called with the path once the field holds the file's name.
    std::function<void(const Text& path)> Then = {};
    /// Called with a picked path in place of all that.
    std::function<void(const Text& path)> Instead = {};
    bool KeepsPath = false; ///< the field takes the full path instead of the bare name
};

/// The button that lets the author pick a file for the field, by the rule; left without a parent.
QPushButton* MakeBrowseButton(Workbench& bench, QLineEdit* field, BrowseRule rule);

} // namespace orvane
