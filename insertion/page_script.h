#pragma once

#include "insertion/page_edit.h"
#include "insertion/page_script_lines.h"

#include <string>
#include <string_view>

namespace orvane {

/// Whether a call in an event of a BODY tag is the window of a popup effect, which has no name of
/// its own by which it is known.
bool IsPopupWindow(std::string_view call);

/// Whether the page has such lines, where a browser sees them.
bool HasPageScript(std::string_view page);

/// The page with the lines directly behind its HEAD tag. A page without a HEAD tag, or with lines
/// already, is given back unchanged.
std::string WithPageScript(std::string_view page);

/// The page without all such lines. Undoes WithPageScript() byte for byte.
std::string WithoutPageScript(std::string_view page);

/// EditPage() for a page with the page script: the lines are taken out before and, if they were
/// there or the payload wants them, put directly behind the HEAD tag afterwards. The lines carry
/// those calls of effects that a browser drops, because the BODY tag has the same event attribute
/// more than once. Lines that the author changed are moved as they are. A page without a HEAD tag
/// is given to EditPage() as it is, and so is one without lines when the payload wants none.
PageEdit EditPageAndScript(std::string_view page, const FinishedPayload& payload,
                           const ReplaceQuestion& askToReplace);

/// The page, into which the payload's effect was put before, with the lines that
/// EditPageAndScript() would have put there with it. A page without a HEAD tag is given back
/// unchanged.
std::string WithPageScriptFor(std::string_view page, const FinishedPayload& payload);

/// Takes all such lines out of a page that wants none any more; else leaves the first ones where
/// they stand and brings the calls that they carry in line with the page's BODY tag. Lines that the
/// author changed and the page wants stay as they are.
void RenewPageScript(std::string& page, bool isWanted);

/// The bytes of the page script's file: a comment with the version and a checksum, then the script.
std::string PageScriptFile(std::string_view version, std::string_view script);

/// The version that the first bytes of a page script name, such as "1.0.0"; empty for any other
/// file.
std::string_view PageScriptVersion(std::string_view file);

/// Whether this is a page script of any version as PageScriptFile() gave it.
bool IsPageScriptUnchanged(std::string_view file);

/// Whether a version is later than another; their numbers between the dots, of any size, are
/// compared one by one.
bool IsLaterVersion(std::string_view version, std::string_view other);

} // namespace orvane
