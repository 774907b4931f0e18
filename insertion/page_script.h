#pragma once

#include "insertion/page_edit.h"

namespace orvane {

/// The file beside a page that makes its effects run in today's browsers.
inline constexpr TextView pageScriptFile = u"orvane.js";

/// The lines that lead a page to the file, as an author puts them in by hand.
inline constexpr TextView pageScriptLines = u"<!-- Begin Orvane page script -->\r\n"
                                            u"<SCRIPT SRC=\"orvane.js\"></SCRIPT>\r\n"
                                            u"<!-- End Orvane page script -->";

/// Whether the page holds the lines.
bool HasPageScript(std::string_view page);

/// The page with the lines directly behind its HEAD tag; a page without one comes back as it is,
/// and so does a page that holds the lines already.
std::string WithPageScript(std::string_view page);

/// The page without the lines: byte for byte what WithPageScript() was given.
std::string WithoutPageScript(std::string_view page);

/// What EditPage() makes of the page without the lines, and the lines in front of everything in its
/// HEAD again if they were there or the payload wants them. They carry the effects' calls that the
/// BODY tag could not take, since it calls something of the author's already. A page without a HEAD
/// tag gets no lines; those that the author has changed move as they are. A page without them and
/// a payload that does not want them: what EditPage() gives, byte for byte.
PageEdit EditPageAndScript(std::string_view page, const FinishedPayload& payload,
                           const ReplaceQuestion& askToReplace);

/// The version that the first bytes of a page script name, such as "1.0.0"; empty for any other
/// file.
std::string_view PageScriptVersion(std::string_view file);

/// Whether a version is later than another; numbers that dots divide count one by one.
bool IsLaterVersion(std::string_view version, std::string_view other);

} // namespace orvane
