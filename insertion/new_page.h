#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "core/payload.h"

#include <string>

namespace orvane {

/// The whole text of a new page around the effect.
Text NewPageText(const FinishedPayload& payload);

/// The bytes of NewPageText() in Windows-1252, with the page script's lines where the payload wants
/// them.
std::string NewPageBytes(const FinishedPayload& payload);

/// Writes a new page around the effect, over a file that exists; after a failure that file is as it
/// was.
[[nodiscard]] Done SaveHTMLtoFile(FileStore& files, TextView path, const FinishedPayload& payload);

/// The filter of the file dialogs in which the author picks a page.
inline constexpr TextView webPageFilter =
    u"All Files (*.*)|*.*|Web page files (*.html, *.htm, *.shtml, *.asp)|*.html;*.htm;*.shtml;*.asp|"
    u"HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|ASP Files (*.asp)|*.asp|"
    u"CGI Files (*.cgi, *.pl)|*.cgi;*.pl|Cascading Style Sheets (*.css)|*.css|"
    u"Cold Fusion Files (*.cfm)|*.cfm|JavaScript Files (*.js)|*.js|"
    u"XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*.xsl|Page Loom Template (*.wwt)|*.wwt|"
    u"Text Files (*.txt)|*.txt";

/// The masks of all those kinds, and of others that Web servers treat as pages.
inline constexpr TextView pageMasks =
    u"*.html;*.htm;*.shtml;*.asp;*.cgi;*.pl;*.css;*.cfm;*.js;*.dtd;*.xml;*.xsl;*.wwt;*.txt;*.xhtml;"
    u"*.php;*.php3;*.phtml;*.jsp";

/// What the file dialogs for a new and for an existing page are opened with.
FileRequest NewPageRequest();
FileRequest ExistingPageRequest();

} // namespace orvane
