#include "insertion/new_page.h"

#include "core/template.h"
#include "insertion/page_encoding.h"
#include "insertion/page_script.h"

namespace orvane {

namespace {

constexpr Template newPage(uR"page(
<HTML>
<HEAD>
«HEADHTML»
</HEAD>
<BODY «BODYAttribute»>
«BODYHTML»
</BODY></HTML>
)page");

} // namespace

Text NewPageText(const FinishedPayload& payload)
{
    return Fill(newPage, {{u"HEADHTML", payload.Effect.HEADHTML},
                          {u"BODYAttribute", payload.BODYAttribute},
                          {u"BODYHTML", payload.Effect.BODYHTML}});
}

std::string NewPageBytes(const FinishedPayload& payload)
{
    const std::string page = EncodeForPage(NewPageText(payload), PageEncoding::Windows1252);
    return payload.WantsPageScript ? WithPageScript(page) : page;
}

Done SaveHTMLtoFile(FileStore& files, TextView path, const FinishedPayload& payload)
{
    return files.Replace(path, NewPageBytes(payload));
}

} // namespace orvane
