#pragma once

#include "core/dialogs.h"

namespace orvane {

/// What the file dialogs for a new and for an existing page are opened with.
FileRequest NewPageRequest();
FileRequest ExistingPageRequest();

/// The masks of all kinds of files that those dialogs offer, and of others that Web servers treat
/// as pages.
inline constexpr TextView pageMasks =
    u"*.html;*.htm;*.shtml;*.asp;*.cgi;*.pl;*.css;*.cfm;*.js;*.dtd;*.xml;*.xsl;*.wwt;*.txt;*.xhtml;"
    u"*.php;*.php3;*.phtml;*.jsp";

} // namespace orvane
