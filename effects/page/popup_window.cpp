#include "effects/page/popup_window.h"

#include "core/template.h"
#include "services/recorded_files.h"

#include <utility>

namespace orvane {

namespace {

constexpr TextView callFunc = u"window.open";

constexpr Template callArgs(uR"page(('«URL»', '«WindowName»', '«Features»'))page");

constexpr Template onLoadBody(uR"page(
<BODY onLoad="«Call»">
)page");

constexpr Template onExitBody(uR"page(
<BODY onUnLoad="«Call»">
)page");

constexpr Template hyperlinkBody(uR"page(
<A HREF="#" onClick="«Call»">«LinkItem»</A>
)page");

// Stays as it is: no blank in front of the border.
constexpr Template imageBody(uR"page(
<A HREF="#" onClick="«Call»"><IMG SRC="«LinkItem»"border=0></A>
)page");

std::optional<Complaint> CheckLink(const PopupWindow& window)
{
    if (!window.txtLinkItem.empty())
        return std::nullopt;
    if (window.optWhenToAppear == WhenToAppear::OnHyperlink)
        return Complaint{u"Enter the hyperlink text below.", "txtLinkItem"};
    if (window.optWhenToAppear == WhenToAppear::OnImage)
        return Complaint{u"Enter the image filename below.", "txtLinkItem"};
    return std::nullopt;
}

std::optional<Complaint> CheckWindow(const PopupWindow& window)
{
    const TextView name = Trim(window.txtWindowName);
    if (name.empty())
        return Complaint{u"Enter a name for the PopUp Window.", "txtWindowName"};
    if (name.find(u' ') != TextView::npos)
        return Complaint{
            u"The window name cannot include spaces.  Please remove the space characters.",
            "txtWindowName"};
    if (window.txtURL.empty())
        return Complaint{u"Enter a URL for the PopUp Window Web page.", "txtURL"};
    if (window.txtWidth.empty())
        return Complaint{u"Enter the width (in pixels) of the PopUp Window.", "txtWidth"};
    if (window.txtHeight.empty())
        return Complaint{u"Enter the height (in pixels) of the PopUp Window.", "txtHeight"};
    return std::nullopt;
}

/// A place on the screen under the two names that browsers know it by.
Text Place(TextView first, TextView second, TextView typed)
{
    const TextView value = Trim(typed);
    return value.empty() ? Text() : Join({u",", first, u"=", value, u",", second, u"=", value});
}

Text Features(const PopupWindow& window)
{
    const auto yesOrNo = [](bool isShown) -> TextView { return isShown ? u"yes" : u"no"; };
    return Join({u"width=",
                 Trim(window.txtWidth),
                 u",height=",
                 Trim(window.txtHeight),
                 Place(u"screenX", u"left", window.txtHorizLocation),
                 Place(u"screenY", u"top", window.txtVertLocation),
                 u",toolbar=",
                 yesOrNo(window.chkShowToolbar),
                 u",status=",
                 yesOrNo(window.chkShowStatusBar),
                 u",location=",
                 yesOrNo(window.chkShowLocation),
                 u",menubar=",
                 yesOrNo(window.chkShowMenu),
                 u",directories=",
                 yesOrNo(window.chkShowDirectory),
                 u",scrollbars=",
                 yesOrNo(window.chkShowScrollbars),
                 u",resizable=",
                 yesOrNo(window.chkResizable)});
}

Text Body(const PopupWindow& window, TextView call)
{
    switch (window.optWhenToAppear) {
    case WhenToAppear::OnLoad:
        return Fill(onLoadBody, {{u"Call", call}});
    case WhenToAppear::OnExit:
        return Fill(onExitBody, {{u"Call", call}});
    case WhenToAppear::OnHyperlink:
        return Fill(hyperlinkBody, {{u"Call", call}, {u"LinkItem", window.txtLinkItem}});
    case WhenToAppear::OnImage:
        return Fill(imageBody, {{u"Call", call}, {u"LinkItem", window.txtLinkItem}});
    }
    return {};
}

} // namespace

Look LookOf(const PopupWindow& window)
{
    const bool isImage = window.optWhenToAppear == WhenToAppear::OnImage;
    if (!isImage && window.optWhenToAppear != WhenToAppear::OnHyperlink)
        return {{.Control = "frameLinkSettings", .IsEnabled = false}};
    const TextView explanation =
        isImage ? u"The Popup Window will appear when the image is clicked.  Specify the image "
                  u"filename below:"
                : u"The Popup Window will appear when the hyperlink is clicked.  Specify the link "
                  u"text below:";
    const TextView tip = isImage ? u"This image will be displayed and clickable on the Web page."
                                 : u"This text will be displayed and clickable on the Web page.";
    return {{.Control = "frameLinkSettings", .IsEnabled = true},
            {.Control = "lblLinkExplanation", .Words = explanation},
            {.Control = "txtLinkItem",
             .HoldsFile = isImage,
             .Words = isImage ? u"Image name:" : u"Hyperlink text:",
             .Tip = tip},
            {.Control = "cmdBrowseForImage", .IsEnabled = isImage}};
}

bool IsPopupPicture(TextView fileName)
{
    return EndsWithIgnoringCase(fileName, u"jpg") || EndsWithIgnoringCase(fileName, u"gif");
}

std::optional<Complaint> CheckPage(const PopupWindow& window, int page)
{
    return page == 0 ? CheckLink(window) : CheckWindow(window);
}

std::vector<Hint> HintsOf(const PopupWindow& window)
{
    HintList hints;
    hints.InScript("txtWindowName", window.txtWindowName, bothQuotes)
        .InScript("txtURL", window.txtURL, bothQuotes);
    const std::pair<ControlName, const Text&> numbers[] = {
        {"txtWidth", window.txtWidth},
        {"txtHeight", window.txtHeight},
        {"txtHorizLocation", window.txtHorizLocation},
        {"txtVertLocation", window.txtVertLocation}};
    for (const auto& [control, number] : numbers)
        hints.InScript(control, number, bothQuotes).Number(control, number);
    return hints.Hints();
}

EffectPayload Generate(const PopupWindow& window)
{
    const Text args = Fill(callArgs, {{u"URL", window.txtURL},
                                      {u"WindowName", window.txtWindowName},
                                      {u"Features", Features(window)}});
    EffectPayload payload{
        .Kind = EffectKind::PopupWindow,
        .BODYHTML = Body(window, Join({callFunc, args})),
        .Required = window.Required,
    };
    if (window.optWhenToAppear == WhenToAppear::OnLoad) {
        payload.OnLoadFunc = callFunc;
        payload.OnLoadArgs = args;
    }
    if (window.optWhenToAppear == WhenToAppear::OnExit) {
        payload.OnUnloadFunc = callFunc;
        payload.OnUnloadArgs = args;
    }
    RequireFile(payload.Required, 0, window.txtURL);
    return payload;
}

} // namespace orvane
