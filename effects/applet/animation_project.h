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

/// Asks where to save the animation, and saves it there; a cancel or a failure changes no file.
/// Expects an animation that passes CheckProject().
void SaveProject(const AdvancedAnimator& animator, Dialogs& dialogs, FileStore& files);

/// The animation of a project file. A file that cannot be read counts as an empty one; one of more
/// than 4 MB is refused with a word, and gives nothing.
std::optional<AdvancedAnimator> LoadProject(TextView path, Dialogs& dialogs,
                                            const FileStore& files);

/// Asks for a project and gives its animation; after a cancel the rows are gone and all else is as
/// it was. After a refusal everything is as it was.
AdvancedAnimator OpenProject(const AdvancedAnimator& animator, Dialogs& dialogs,
                             const FileStore& files);

/// Asks whether to start anew, under the window's caption as title, and gives an animation without
/// rows, size and background on Yes; `animator` as it is otherwise.
AdvancedAnimator NewProject(const AdvancedAnimator& animator, Dialogs& dialogs, TextView caption);

} // namespace orvane
