#include "effects/page/cursor_trail.h"

#include "core/file_names.h"
#include "core/numbers.h"
#include "core/template.h"
#include "services/recorded_files.h"

namespace orvane {

namespace {

constexpr Template head(uR"page(
<SCRIPT LANGUAGE='JavaScript1.2'>
<!--
var isIE = true;
var isNav = false;
var strDivColl = 'all.';
var strStyleObj = '.style';
var strPixelTop = '.pixelTop';
var strPixelLeft = '.pixelLeft';
var aryImages, aryLastKnownPos;
var intNumTrailImages = «TrailLength»;
var strImgPathFilename = '«ImageName»';
if (document.layers){
    isNav = true, isIE = false, strDivColl = 'layers.', strStyleObj = '', strPixelTop = '.top', strPixelLeft = '.left';
    document.captureEvents(Event.MOUSEMOVE);
}

initMouseTrail();
document.onmousemove = onMouseMoveEvent;


function initMouseTrail(){
var i;
aryImages = new Array();
for (i = 0; i < intNumTrailImages; i++)
{
    aryImages[i] = new Image();
    aryImages[i].src = strImgPathFilename;
}

aryLastKnownPos = new Array();
for (i = 0; i < intNumTrailImages*2; i++)
{
    aryLastKnownPos[i] = 0;
}
for (i = 0; i < intNumTrailImages; i++)
{
if (isIE)
    document.write('<div id="imgTrail' + i + '" style="position:absolute; z-Index:99; height:0; width:0"><img src="' + aryImages[i].src + '"></div>')
else
    document.write('<layer name="imgTrail' + i + '" width="0" height="0" z-index="99"><img src="' + aryImages[i].src + '"></layer>');
}
DrawMouseTrail();
}
function DrawMouseTrail()
{
var i, x = 0;
for (i = 0; i < intNumTrailImages; i++)
{
eval('document.' + strDivColl + 'imgTrail' + i + strStyleObj + strPixelTop + '=' + aryLastKnownPos[x]);
eval('document.' + strDivColl + 'imgTrail' + i + strStyleObj + strPixelLeft + '=' + aryLastKnownPos[x + 1]);
x = x+2;
}

for (i = aryLastKnownPos.length - 1; i >= 2; i--)
{
    aryLastKnownPos[i] = aryLastKnownPos[i - 2];
}
clearTimeout(TrailTimer);
var TrailTimer = setTimeout('DrawMouseTrail()', 20);
}
function onMouseMoveEvent(eventarg)
{
if (isIE) {
    aryLastKnownPos[0] = window.event.y + document.body.scrollTop + 10;
    aryLastKnownPos[1] = window.event.x + document.body.scrollLeft + 10;
} else {
    aryLastKnownPos[0] = eventarg.pageY + 12;
    aryLastKnownPos[1] = eventarg.pageX + 12;
}
}
// -->
</script>
)page");

} // namespace

std::optional<Complaint> Check(const CursorTrail& trail)
{
    if (trail.txtImage.empty())
        return Complaint{u"Please specify an image to use as your Mouse Cursor Trail.", "txtImage"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const CursorTrail& trail)
{
    return HintList().InScript("txtImage", GetFileName(trail.txtImage), bothQuotes).Hints();
}

EffectPayload Generate(const CursorTrail& trail)
{
    EffectPayload payload{.Kind = EffectKind::CursorTrail};
    const Text name = RequirePath(payload.Required, 0, trail.txtImage);
    payload.HEADHTML =
        Fill(head, {{u"TrailLength", NumberToText(trail.Slider)}, {u"ImageName", name}});
    return payload;
}

} // namespace orvane
