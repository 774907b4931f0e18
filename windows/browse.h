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

/// A Browse button beside a field: the dialog that it opens, and what becomes of the picked file.
struct BrowseRule
{
    ControlName Button;
    TextView Caption;
    FileRequest Request;
    /// The folder in which the dialog starts; the folder of the picked file is stored there. Null:
    /// the dialog starts where the request says, and nothing is stored.
    Text OrvaneCore::*Folder = nullptr;
    std::optional<FileRole> NoBlanks = {}; ///< refuses a blank in the name of such a file
    /// Takes the path, as one of the window's RequiredFileSources does. May be null.
    Text* Source = nullptr;
    /// Called first with the picked path; false refuses it. Null admits every path.
    std::function<bool(const Text& path)> Admits = {};
    /// Called with the path once the field holds the file's name. May be null.
    std::function<void(const Text& path)> Then = {};
    /// Called with an admitted path in place of all the steps below Admits. May be null.
    std::function<void(const Text& path)> Instead = {};
    bool KeepsPath = false;  ///< the field takes the full path instead of the bare name
    bool GivesFocus = false; ///< the field gets the focus once it holds the file's name
};

/// The button that lets the author pick a file for the field, by the rule; it has no parent yet. A
/// cancelled dialog changes nothing. Either way the focus goes to the field. The bench must outlive
/// the button.
QPushButton* MakeBrowseButton(Workbench& bench, QLineEdit* field, BrowseRule rule);

} // namespace orvane
