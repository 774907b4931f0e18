#include "effects/page/slideshow.h"

#include "core/numbers.h"
#include "core/pick_lists.h"
#include "core/template.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace orvane {

namespace {

constexpr Template bodyImage(uR"page(
<img id='oImg' style='' src='«FirstImage»'>
)page");

constexpr Template bodyControls(uR"page(
<form id='form1' name='form1' action='#'>
<button onclick='window.clearInterval(iTimer);doTrans(-1)' id='btnPrev'>&lt;&lt;</button> &nbsp; &nbsp; &nbsp;
<button onclick="window.clearInterval(iTimer);doTrans(1);iTimer = setInterval('doTrans(1)', «IntervalMs»);" id='btnPlay'>Play</button> &nbsp; &nbsp; &nbsp;
<button onclick='window.clearInterval(iTimer);doTrans(1)' id='btnNext'>&gt;&gt;</button></form>)page");

constexpr Template head(uR"page(
<script language='JavaScript'>
var mypix = new Array()
var mypixNames = new Array()
mypixNames = [«ImageNames»]
var iTotalNumImages = «ImageCount»;
var iCounter = 0;
var iTimer;
var blnWaiting = false;
var blnAutoStart = «AutoStart»;
var blnRepeat = «Repeat»;
var blnTransOn = «TransOn»;

function loadImages() {
    for (i=0; i<iTotalNumImages; i++)
    {
        mypix[i]=new Image();
    }

    mypix[0].src = mypixNames[0];
    mypix[1].src = mypixNames[1];
    SetControls();

    if (blnAutoStart == true)
        iTimer = setInterval('doTrans(1)', «IntervalMs»);
}

function doTrans(direction) {
    if (iCounter >= iTotalNumImages-1 && direction > 0)
        iCounter=-1;

    if (document.all && blnTransOn)
    {
        if (mypix[iCounter + direction].readyState == 'complete')
        {
            oImg.style.filter = '«TransFilter»';
            oImg.filters[0].apply();
            iCounter += direction;
            oImg.src = mypix[iCounter].src;
            oImg.filters[0].play();

            SetControls();

        } else {
            //alert('not complete');
            //msg.innerHTML = 'Loading...';
            //blnWaiting = true;
        }
    } else {
    iCounter += direction;
    document.images.oImg.src = mypix[iCounter].src;
    SetControls();
    }
}
function SetControls() {
«SetControlsBody»
}
</script>

)page");

constexpr Template setControlsWithButtons(uR"page(
    if (iCounter == 0)
    {
        document.form1.btnPrev.disabled=true;
        document.form1.btnNext.disabled=false;
    } else if (iCounter < iTotalNumImages - 1) {
        document.form1.btnPrev.disabled=false;
        document.form1.btnNext.disabled=false;
        if (mypix[iCounter+1].src == '')
        {
            mypix[iCounter+1].src=mypixNames[iCounter+1];
        }
    } else {
        document.form1.btnNext.disabled=true;
        if (blnRepeat == false)
            window.clearInterval(iTimer);
    }
)page");

constexpr Template setControlsWithout(uR"page(
    if (iCounter < iTotalNumImages - 1) {
        if (mypix[iCounter+1].src == '')
            mypix[iCounter+1].src=mypixNames[iCounter+1]; }
    else
    {
        if (blnRepeat == false)
            window.clearInterval(iTimer);
    }

)page");

constexpr Template transFilter(uR"page(revealTrans(transition=«Index»,duration=1))page");

constexpr int longestSlide = 32; ///< seconds whose milliseconds have 16 bits

/// The duration in milliseconds. Stays as it is: a duration that is no whole-text number, or whose
/// milliseconds leave 16 bits, gives no text.
Text IntervalMs(const Text& seconds)
{
    if (seconds.empty())
        return u"5000";
    const auto number = ToInteger16(seconds);
    if (FaultIn(number))
        return {};
    const int milliseconds = ValueIn(number) * 1000;
    return std::in_range<std::int16_t>(milliseconds) ? NumberToText(milliseconds) : Text();
}

Text TransFilter(TextView transition)
{
    const auto* const found =
        std::find(RevealTransitions.begin(), RevealTransitions.end(), transition);
    if (found == RevealTransitions.end())
        return {};
    return Fill(transFilter, {{u"Index", NumberToText(found - RevealTransitions.begin())}});
}

Text ImageNames(const std::vector<ImageRow>& rows)
{
    std::vector<Text> names;
    for (const ImageRow& row : rows)
        names.push_back(Join({u"\"", row.FileName, u"\""}));
    return Listed(names);
}

TextView TrueOrFalse(bool value)
{
    return value ? u"true" : u"false";
}

Text Body(const Slideshow& show)
{
    const Text image = Fill(bodyImage, {{u"FirstImage", show.Rows.front().FileName}});
    if (!show.chkDisplayControls)
        return image;
    return image + Fill(bodyControls, {{u"IntervalMs", IntervalMs(show.txtSlideDuration)}});
}

Text Head(const Slideshow& show)
{
    const Text setControls =
        show.chkDisplayControls ? Fill(setControlsWithButtons) : Fill(setControlsWithout);
    return Fill(head, {{u"ImageNames", ImageNames(show.Rows)},
                       {u"ImageCount", NumberToText(show.Rows.size())},
                       {u"AutoStart", TrueOrFalse(show.chkAutoStart)},
                       {u"Repeat", TrueOrFalse(show.chkRepeat)},
                       {u"TransOn", TrueOrFalse(!show.cmbTransitions.empty())},
                       {u"IntervalMs", IntervalMs(show.txtSlideDuration)},
                       {u"TransFilter", TransFilter(show.cmbTransitions)},
                       {u"SetControlsBody", setControls}});
}

} // namespace

std::optional<Complaint> CheckMoves(const Slideshow& show, std::string_view unticked)
{
    if (show.chkAutoStart || show.chkDisplayControls)
        return std::nullopt;
    if (unticked == "chkAutoStart")
        return Complaint{u"If you choose to not autostart your slideshow, you must display the "
                         u"slideshow controls.",
                         "chkDisplayControls"};
    return Complaint{u"If you choose to not display the slideshow controls on your Web page, then "
                     u"you must autostart your slideshow.",
                     "chkAutoStart"};
}

std::optional<Complaint> CheckPage(const Slideshow& show, int page)
{
    if (page == 0 && show.Rows.size() < 2)
        return Complaint{u"Please add more than one image to the Slideshow Image List.", "List1"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const Slideshow& show)
{
    HintList hints;
    for (const ImageRow& row : show.Rows)
        hints.InScript("List1", row.FileName, u"\"");
    if (IntervalMs(show.txtSlideDuration).empty())
        hints.Seconds("txtSlideDuration", show.txtSlideDuration, longestSlide);
    return hints.Hints();
}

EffectPayload Generate(const Slideshow& show)
{
    EffectPayload payload{
        .Kind = EffectKind::Slideshow,
        .HEADHTML = Head(show),
        .BODYHTML = Body(show),
        .OnLoadFunc = u"loadImages",
        .OnLoadArgs = u"()",
        .Required = show.Required,
    };
    payload.SavedHEAD = payload.HEADHTML;
    payload.SavedBODY = payload.BODYHTML;
    return payload;
}

} // namespace orvane
