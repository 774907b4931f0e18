#include "effects/page/all_in_one_button.h"

#include "core/template.h"
#include "services/web_address.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr Template linkHead(uR"page(
<SCRIPT Language='Javascript'>

function LinkToLocation(strURL)
{
   window.location = strURL;
}
</script>
)page");

// Stays as it is: what clears the object stands behind the comment of its line and never runs.
constexpr Template printHead(uR"page(
<SCRIPT Language='Javascript'>

function PrintWebPage()
{
   if (window.print) {
       window.print();
   } else {
       var WebBrowser = '<OBJECT ID="WebBrowser1" WIDTH=0 HEIGHT=0 CLASSID="CLSID:8856F961-340A-11D0-A96B-00C04FD705A2"></OBJECT>';
       document.body.insertAdjacentHTML('beforeEnd', WebBrowser);
       WebBrowser1.ExecWB(6, 2);   //Use a 1 vs. a 2 for a prompting dialog box    WebBrowser1.outerHTML = '';
   }
}
</script>
)page");

constexpr Template closeHead(uR"page(
<SCRIPT Language='Javascript'>

function closeWindow()
{
   window.close();
}
</script>
)page");

constexpr Template soundHead(uR"page(
<SCRIPT Language='Javascript'>

function playSound(strSoundFile)
{
   if (navigator.appName == 'Netscape')
       window.location = strSoundFile;
   else
       document.all.soundfile.src = strSoundFile;
}
</script>
)page");

constexpr Template favoritesHead(uR"page(
<script language='JavaScript1.2'>
function addBookmark(strBookmarkURL, strBookmarkTitle)
{

   if (document.all)
       window.external.AddFavorite(strBookmarkURL, strBookmarkTitle)
   else if (window.sidebar && window.sidebar.addPanel)
       window.sidebar.addPanel(strBookmarkTitle, strBookmarkURL,'');
}
</script>
)page");

constexpr Template buttonBody(uR"page(
<form><input type=button value="«Text»" onClick="«Call»"></form>
)page");

constexpr Template linkBody(uR"page(
<a href="#" onClick="«Call»">«Text»</a>
)page");

constexpr Template imageBody(uR"page(
<a href="#" onClick="«Call»"><img src="«Text»" border=0></a>
)page");

constexpr TextView soundElement = u"<BGSOUND SRC=\"\" ID=\"soundfile\">\r\n";

/// An action's script, and the call of it.
struct ClickCode
{
    Text Head;
    Text Call;
};

ClickCode CodeOf(const AllInOneButton& button)
{
    switch (ActionOf(button.cboButtonAction)) {
    case ButtonAction::Link:
        return {Fill(linkHead), Join({u"LinkToLocation('", WithScheme(button.txtURL), u"')"})};
    case ButtonAction::Print:
        return {Fill(printHead), u"PrintWebPage()"};
    case ButtonAction::Close:
        return {Fill(closeHead), u"closeWindow()"};
    case ButtonAction::Sound:
        return {Fill(soundHead), Join({u"playSound('", button.txtURL, u"')"})};
    case ButtonAction::Favorites:
        return {Fill(favoritesHead), Join({u"addBookmark('", button.txtBookmarkURL, u"','",
                                           button.txtBookmarkTitle, u"')"})};
    case ButtonAction::None:
        break;
    }
    return {};
}

TemplateView BodyOf(ButtonType type)
{
    switch (type) {
    case ButtonType::Hyperlink:
        return linkBody;
    case ButtonType::Image:
        return imageBody;
    default:
        return buttonBody;
    }
}

std::optional<Complaint> CheckAction(const AllInOneButton& button)
{
    const ButtonAction action = ActionOf(button.cboButtonAction);
    const bool lacksURL = button.txtBookmarkURL.empty();
    if (action == ButtonAction::Favorites && (lacksURL || button.txtBookmarkTitle.empty()))
        return Complaint{
            u"Please enter a BookmarkURL and the Bookmark Title in the input boxes below.",
            lacksURL ? "txtBookmarkURL" : "txtBookmarkTitle"};
    if (action == ButtonAction::Link && button.txtURL.empty())
        return Complaint{u"Please enter a URL to link to.", "txtURL"};
    if (action == ButtonAction::Sound && button.txtURL.empty())
        return Complaint{u"Please enter a sound file to be played when your button is pushed.",
                         "txtURL"};
    return std::nullopt;
}

ControlLook TextBoxOf(ButtonType type)
{
    const auto look = [&](TextView words, TextView tip) {
        return ControlLook{.Control = "txtButtonText",
                           .HoldsFile = type == ButtonType::Image,
                           .Words = words,
                           .Tip = tip};
    };
    switch (type) {
    case ButtonType::Hyperlink:
        return look(u"Hyperlink text:",
                    u"This is the text that will appear as a link on your Web page.");
    case ButtonType::Image:
        return look(u"Image filename:",
                    u"This is the filename of the image to be used as a button.");
    default:
        return look(u"Button text:",
                    u"This is the text that will appear on the face of the button.");
    }
}

} // namespace

ButtonAction ActionOf(TextView item)
{
    const auto found = std::ranges::find(buttonActions, item);
    return found == buttonActions.end() ? ButtonAction::None
                                        : static_cast<ButtonAction>(found - buttonActions.begin());
}

Look LookOf(const AllInOneButton& button)
{
    const ButtonAction action = ActionOf(button.cboButtonAction);
    const bool isSound = action == ButtonAction::Sound;
    const bool isFavorites = action == ButtonAction::Favorites;
    const bool isImage = button.optButtonType == ButtonType::Image;
    ControlLook target{.Control = "txtURL",
                       .IsShown = isSound || action == ButtonAction::Link,
                       .HoldsFile = isSound};
    if (*target.IsShown)
        target.Words = isSound ? u"Sound file:" : u"Web page URL:";
    return {TextBoxOf(button.optButtonType),
            {.Control = "cmdBrowseForImage", .IsShown = isImage},
            target,
            {.Control = "txtBookmarkURL", .IsShown = isFavorites},
            {.Control = "txtBookmarkTitle", .IsShown = isFavorites}};
}

std::optional<Complaint> CheckPage(const AllInOneButton& button, int page)
{
    if (button.cboButtonAction.empty())
        return Complaint{u"Please select an action for your button from the list below.",
                         "cboButtonAction"};
    if (page == 0)
        return std::nullopt;
    if (auto complaint = CheckAction(button))
        return complaint;
    if (button.txtButtonText.empty())
        return Complaint{u"Please specify the text or image filename for your button.",
                         "txtButtonText"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const AllInOneButton& button)
{
    HintList hints;
    const ButtonAction action = ActionOf(button.cboButtonAction);
    if (action == ButtonAction::Link || action == ButtonAction::Sound)
        hints.InScript("txtURL", button.txtURL, bothQuotes);
    if (action == ButtonAction::Favorites)
        hints.InScript("txtBookmarkURL", button.txtBookmarkURL, bothQuotes)
            .InScript("txtBookmarkTitle", button.txtBookmarkTitle, bothQuotes);
    return hints.Hints();
}

EffectPayload Generate(const AllInOneButton& button)
{
    const ClickCode code = CodeOf(button);
    const bool plays = ActionOf(button.cboButtonAction) == ButtonAction::Sound;
    return {
        .Kind = EffectKind::AllInOneButton,
        .HEADHTML = code.Head,
        .BODYHTML = Join({Fill(BodyOf(button.optButtonType),
                               {{u"Text", button.txtButtonText}, {u"Call", code.Call}}),
                          plays ? soundElement : TextView()}),
    };
}

} // namespace orvane
