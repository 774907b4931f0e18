#include "effects/page/search_box.h"

#include "core/file_names.h"
#include "core/template.h"

namespace orvane {

namespace {

/// The picture in both forms.
constexpr TextView searchLogo = u"GoogleLogo.gif";

constexpr TextView searchEndpoint = u"https://www.google.com/search";
constexpr TextView searchHome = u"https://www.google.com/";
constexpr TextView translateEndpoint = u"https://translate.google.com/translate";

constexpr Template searchBody(uR"page(
<!-- Search Google -->
<center>
<FORM method=GET action="«SearchEndpoint»">
<TABLE bgcolor="#FFFFFF"><tr><td>
<A HREF="«SearchHome»">
<IMG SRC="GoogleLogo.gif" border="0" ALT="Google" align="absmiddle"></A>
<INPUT TYPE=text name=q size=25 maxlength=255 value="">
«SiteLine»<INPUT type=submit name=btnG VALUE="Google Search">
</td></tr></TABLE>
</FORM>
</center>
<!-- Search Google -->
)page");

constexpr Template siteLine(uR"page(
<INPUT TYPE=hidden name=as_sitesearch size=25 maxlength=255 value="«Site»">
)page");

constexpr Template translateBody(uR"page(
<form action="«TranslateEndpoint»">
<input type=hidden name=u value='«TranslateURL»'>
<select name=langpair>
<option value="en|es" selected>Spanish</option>
<option value="en|de">German</option>
<option value="en|fr">French</option>
<option value="en|it">Italian</option>
<option value="en|pt">Portuguese</option>
</select>
<input type=hidden name=hl value="en">
<input type=hidden name=ie value="UTF-8">
<input type=hidden name=oe value="UTF-8">
<input type=hidden name=prev value="/language_tools">
<input type=submit value="Translate" style="height:22px;font-size:10px;"> with <IMG SRC="GoogleLogo.gif" border="0" ALT="Google" align="absmiddle">
</form>
)page");

Text SearchForm(const SearchBox& box)
{
    const Text site =
        box.optSearch == SearchPlace::Site ? Fill(siteLine, {{u"Site", box.txtURL}}) : Text();
    return Fill(
        searchBody,
        {{u"SearchEndpoint", searchEndpoint}, {u"SearchHome", searchHome}, {u"SiteLine", site}});
}

Text TranslateForm(const SearchBox& box)
{
    return Fill(translateBody, {{u"TranslateEndpoint", translateEndpoint},
                                {u"TranslateURL", box.txtTranslateURL}});
}

} // namespace

void ChooseKind(SearchBox& box, EffectKind kind)
{
    box.Mode = kind == EffectKind::Translator ? translateMode : searchMode;
}

SearchModeWords WordsOfMode(TextView mode)
{
    if (mode == searchMode)
        return {EffectKind::SearchBox, u"Search Box",
                u"Add a Google search box to your Web pages so anyone can search the Web from your "
                u"page!  Or search a specific Web site of your choice!"};
    return {EffectKind::Translator, u"Web Page Translator",
            u"Translate your Web pages to any language with this special effect!  Type the name of "
            u"the Web page you wish to translate in the input box below."};
}

Look LookOf(const SearchBox& box)
{
    const bool searches = box.Mode == searchMode;
    return {{.Control = "frameSearch", .IsShown = searches},
            {.Control = "frameTranslate", .IsShown = !searches},
            {.Control = "txtURL", .IsEnabled = box.optSearch == SearchPlace::Site}};
}

std::optional<Complaint> Check(const SearchBox& box)
{
    if (box.Mode == searchMode) {
        if (box.optSearch == SearchPlace::Site && box.txtURL.empty())
            return Complaint{u"Please enter a domain name or Web site in the input box below.",
                             "txtURL"};
        return std::nullopt;
    }
    constexpr TextView scheme = u"http://";
    if (!box.txtTranslateURL.starts_with(scheme) || box.txtTranslateURL == scheme)
        return Complaint{Join({u"The Web page you wish to translate must be specified with the "
                               u"entire URL.  For example, type \"",
                               translateSample, u"\" and not \"mypage.html\""}),
                         "txtTranslateURL"};
    return std::nullopt;
}

EffectPayload Generate(const SearchBox& box, const Surroundings& surroundings)
{
    EffectPayload payload{
        .Kind = WordsOfMode(box.Mode).Kind,
        .BODYHTML = box.Mode == searchMode ? SearchForm(box) : TranslateForm(box),
    };
    payload.Required.RequiredFileNames[0] = searchLogo;
    payload.Required.RequiredFileSources[0] = PathIn(surroundings.ProgramFolder, searchLogo);
    return payload;
}

} // namespace orvane
