#include "effects/page/color_scrollbars.h"

#include "core/template.h"

namespace orvane {

namespace {

// Browsers that know the first rule would not look at the others.
constexpr Template style(uR"page(
«OpenTag»
html{scrollbar-color:«Handle» «Track»;scrollbar-width:«Thickness»}
«Boxes»
@supports not (scrollbar-color:auto){
«Page»::-webkit-scrollbar{width:«Pixels»px;height:«Pixels»px}
«Page»::-webkit-scrollbar-thumb{background:«Handle»}
«HoverRule»«Page»::-webkit-scrollbar-track,«Page»::-webkit-scrollbar-corner{background:«Track»}
}
</style>
)page");

constexpr Template hoverRule(uR"page(
«Page»::-webkit-scrollbar-thumb:hover{background:«Hover»}
)page");

// Boxes have the colours of the page, but not its thickness.
constexpr Template boxesAsUsual(uR"page(body{scrollbar-color:auto})page");

constexpr Template boxesAsThePage(uR"page(*{scrollbar-width:«Thickness»})page");

} // namespace

std::optional<Complaint> Check(const ColorScrollbars& bars)
{
    if (auto complaint = CheckColor(bars.HandleColor, u"the handle", "cmdHandleColor"))
        return complaint;
    return CheckColor(bars.TrackColor, u"the track", "cmdTrackColor");
}

std::vector<Hint> HintsOf(const ColorScrollbars& bars)
{
    return HintList()
        .Contrast("cmdTrackColor", bars.HandleColor, bars.TrackColor, shapeContrast)
        .Contrast("cmdHoverColor", bars.HoverColor, bars.TrackColor, shapeContrast)
        .Hints();
}

EffectPayload Generate(const ColorScrollbars& bars)
{
    const bool isPageAlone = bars.cboWhere == u"page";
    const TextView page = isPageAlone ? u"html" : u"";
    const Text boxes = isPageAlone ? Fill(boxesAsUsual)
                                   : Fill(boxesAsThePage, {{u"Thickness", bars.cboThickness}});
    const Text hover = bars.HoverColor.empty()
                           ? Text()
                           : Fill(hoverRule, {{u"Page", page}, {u"Hover", bars.HoverColor}});
    return {
        .Kind = EffectKind::ColorScrollbars,
        .HEADHTML = Fill(style, {{u"OpenTag", OpenTagOf(BlockOf(bars), u"style")},
                                 {u"Handle", bars.HandleColor},
                                 {u"Track", bars.TrackColor},
                                 {u"Thickness", bars.cboThickness},
                                 {u"Boxes", boxes},
                                 {u"Page", page},
                                 {u"Pixels", bars.cboThickness == u"thin" ? u"8" : u"16"},
                                 {u"HoverRule", hover}}),
        .IsBlock = true,
    };
}

} // namespace orvane
