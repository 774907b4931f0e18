#include "services/page_requests.h"

namespace orvane {

namespace {

constexpr TextView webPageFilter =
    u"All Files (*.*)|*.*|Web page files (*.html, *.htm, *.shtml, *.asp)|*.html;*.htm;*.shtml;*.asp|"
    u"HTML Files (*.htm, *.html, *.shtml)|*.htm;*.html;*.shtml|ASP Files (*.asp)|*.asp|"
    u"CGI Files (*.cgi, *.pl)|*.cgi;*.pl|Cascading Style Sheets (*.css)|*.css|"
    u"Cold Fusion Files (*.cfm)|*.cfm|JavaScript Files (*.js)|*.js|"
    u"XML Files (*.dtd, *.xml, *.xsl)|*.dtd;*.xml;*.xsl|Page Loom Template (*.wwt)|*.wwt|"
    u"Text Files (*.txt)|*.txt";

} // namespace

FileRequest NewPageRequest()
{
    return {.Title = u"Save As",
            .Filter = Text(webPageFilter),
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Pages};
}

FileRequest ExistingPageRequest()
{
    return {.Title = u"Browse...",
            .Filter = Text(webPageFilter),
            .FilterIndex = 2,
            .Purpose = FolderPurpose::Pages};
}

} // namespace orvane
