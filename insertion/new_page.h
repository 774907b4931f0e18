#pragma once

#include "core/dialogs.h"
#include "core/file_store.h"
#include "core/payload.h"

#include <string>

namespace orvane {

/// The whole text of a new page around the effect.
Text NewPageText(const FinishedPayload& payload);

/// The bytes of that page, with the page script's lines where the payload wants them.
std::string NewPageBytes(const FinishedPayload& payload);

/// Writes a new page around the effect; on failure the file keeps what it had.
[[nodiscard]] Done SaveHTMLtoFile(FileStore& files, TextView path, const FinishedPayload& payload);

/// The file kinds that the delivery wizard offers for a page.
inline constexpr TextView webPageFilter =
    u"All Files (*.*)|*.*|Web page files (*.html, *.htm, *.shtml, *.asp)|*.html;*.htm;*.shtml;*.asp|"
    u"HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|ASP Files (*.asp)|*.asp|"
    u"CGI Files (*.cgi, *.pl)|*.cgi;*.pl|Cascading Style Sheets (*.css)|*.css|"
    u"Cold Fusion Files (*.cfm)|*.cfm|JavaScript Files (*.js)|*.js|"
    u"XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*.xsl|Page Loom Template (*.wwt)|*.wwt|"
    u"Text Files (*.txt)|*.txt";

/// The names of all those kinds, and of others that Web servers take for pages.
inline constexpr TextView pageMasks =
    u"*.html;*.htm;*.shtml;*.asp;*.cgi;*.pl;*.css;*.cfm;*.js;*.dtd;*.xml;*.xsl;*.wwt;*.txt;*.xhtml;"
    u"*.php;*.php3;*.phtml;*.jsp";

/// What the dialogs for a new page and for an existing page are asked for.
FileRequest NewPageRequest();
FileRequest ExistingPageRequest();

} // namespace orvane
