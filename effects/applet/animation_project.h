#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "effects/applet/advanced_animator.h"

#include <string>
#include <string_view>

namespace orvane {

/// The bytes of an animation's project file: one record of nine quoted texts. They are
/// Windows-1252, or UTF-8 behind a byte-order mark when a text needs it. A quote is not escaped.
std::string ProjectBytes(const AdvancedAnimator& animator);

/// The animation of a project file. Any bytes give one: missing texts are empty, and of more than
/// 31 images the further rows, up to 32767 in all, are empty.
AdvancedAnimator ReadProject(std::string_view bytes);

/// The first failing check before a project is saved, or nothing.
std::optional<Complaint> CheckProject(const AdvancedAnimator& animator);

/// An animation in its window, and the project file that it came from or went to last.
struct AnimationProject
{
    AdvancedAnimator Animation;
    Text Path;         ///< empty when there is no such file
    std::string Saved; ///< the bytes of the animation as it was opened, saved or begun
    bool operator==(const AnimationProject&) const = default;
};

/// A project without a file that counts as saved.
AnimationProject UnnamedProject(const AdvancedAnimator& animation);

/// Whether the animation is another one than was saved.
bool IsModified(const AnimationProject& project);

/// Asks where to save the animation, and saves it there; true when it was. A cancel or a failure
/// changes no file and leaves the project as it was. Expects an animation that passes
/// CheckProject().
bool SaveProject(AnimationProject& project, Dialogs& dialogs, FileStore& files);

/// Asks for a project and opens it by the rules of LoadProject(); after a cancel the rows are
/// gone and all else is as it was.
AnimationProject OpenProject(const AnimationProject& project, Dialogs& dialogs,
                             const FileStore& files);

/// The project of a file. One that cannot be read counts as empty and has no path; one of more than
/// 4 MB is refused with a word, and `project` stays as it is.
AnimationProject LoadProject(const AnimationProject& project, TextView path, Dialogs& dialogs,
                             const FileStore& files);

/// Asks whether to start anew, under the window's caption as title, and gives an animation without
/// rows, size, background and file on Yes; `project` as it is otherwise.
AnimationProject NewProject(const AnimationProject& project, Dialogs& dialogs, TextView caption);

} // namespace orvane
