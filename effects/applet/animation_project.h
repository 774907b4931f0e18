#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "effects/applet/advanced_animator.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// The bytes of an animation's project file: one line of nine quoted texts with commas between
/// them. They are in Windows-1252, or in UTF-8 behind a byte-order mark when a text needs it. A
/// quote inside a text is not escaped.
std::string ProjectBytes(const AdvancedAnimator& animator);

/// The animation in the bytes of a project file. Any bytes give one: missing texts are empty, and
/// of more than 31 images the further rows, up to 32767 in all, are empty.
AdvancedAnimator ReadProject(std::string_view bytes);

/// The complaint of the first check that fails before a project is saved, or nothing.
std::optional<Complaint> CheckProject(const AdvancedAnimator& animator);

/// An animation in its window, and the project file that it came from or went to last.
struct AnimationProject
{
    AdvancedAnimator Animation;
    Text Path;         ///< empty when there is no such file
    std::string Saved; ///< the bytes of the animation when it was last opened, saved or begun
    bool operator==(const AnimationProject&) const = default;
};

/// A project without a file, whose animation counts as saved.
AnimationProject UnnamedProject(const AdvancedAnimator& animation);

/// Whether the animation differs from the saved one.
bool IsModified(const AnimationProject& project);

/// Asks where to save the animation and saves it there; true when it was saved. After a cancel or a
/// failure, which is not told, file and project are as they were. Expects an animation that passes
/// CheckProject().
bool SaveProjectAs(AnimationProject& project, Dialogs& dialogs, FileStore& files);

/// Saves the animation in the project's own file without a question; one that has no file yet is
/// saved by SaveProjectAs(). Gives and expects what that does.
bool SaveProject(AnimationProject& project, Dialogs& dialogs, FileStore& files);

/// Asks for a project file and gives what LoadProject() makes of it; after a cancel, `project`
/// without its rows.
AnimationProject OpenProject(const AnimationProject& project, Dialogs& dialogs,
                             const FileStore& files);

/// The project in the file at `path`, with the required files of `project`: those picked so far are
/// delivered all the same. A file that cannot be read counts as one without bytes, and the project
/// has no path. A file of more than 4 MB is refused with a message, and `project` is given back.
AnimationProject LoadProject(const AnimationProject& project, TextView path, Dialogs& dialogs,
                             const FileStore& files);

/// Asks, under the title `caption`, whether to start anew. On Yes gives an animation without rows,
/// size, background and file, whose loop count and required files are kept; else `project`.
AnimationProject NewProject(const AnimationProject& project, Dialogs& dialogs, TextView caption);

} // namespace orvane
