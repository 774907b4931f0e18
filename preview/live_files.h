#pragma once

#include "core/preview_pane.h"

#include <optional>
#include <string_view>

namespace orvane {

/// Whether a live page can read that name, which is relative to its folder: itself, one of its
/// files, or what lies in its folder.
bool HasFile(const LivePage& page, TextView name);

/// What the page gets when it reads the name; nothing where HasFile() is false. For a visitor who
/// wants less motion, what has bytes is changed by WithReducedMotion() already.
std::optional<PaneFile> FileOf(const LivePage& page, TextView name);

/// Whether files of that name are page code, style sheets or script, and so may ask for the motion
/// that the visitor wants.
bool MayAskForMotion(TextView name);

/// The code with all its questions for the motion that the visitor wants answered by "less": the
/// engine cannot be told it for one page.
std::string WithReducedMotion(std::string_view code);

/// The type under which the pane gives the file to the engine.
std::string_view MimeTypeOf(TextView name);

} // namespace orvane
