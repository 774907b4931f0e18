#include "effects/page/pulldown_menu.h"

#include "core/numbers.h"
#include "core/template.h"
#include "services/web_address.h"

namespace orvane {

namespace {

constexpr Template body(uR"page(
<SCRIPT LANGUAGE="JavaScript">
<!--

function JumpTo(form)
{
   i = form.elements[0].selectedIndex;
«JumpLine»
}
//-->
</SCRIPT>
<FORM METHOD=POST ACTION="#" onSubmit="return false">
    <SELECT«SizePart»>
«OptionLines»    </SELECT>
  <INPUT TYPE=Submit NAME="Submit" VALUE="Go to" onClick="JumpTo(this.form)">
</FORM>
)page");

constexpr TextView jumpToNewWindow =
    u"    window.open(form.elements[0].options[i].value, 'newWin', '')";

constexpr Template jumpToFrame(
    uR"page(    window.parent.frames['«Target»'].location = form.elements[0].options[i].value;)page");

constexpr Template sizePart(uR"page( SIZE="«Count»")page");

constexpr Template optionLine(uR"page(
          <OPTION VALUE="«URL»">«Item»
)page");

Text JumpLine(const PulldownMenu& menu)
{
    const TextView target = Trim(menu.cboTarget);
    if (target.starts_with(u"blank"))
        return Text(jumpToNewWindow);
    return Fill(jumpToFrame, {{u"Target", target}});
}

Text OptionLines(const PulldownMenu& menu)
{
    Text lines;
    for (const auto& [item, url] : menu.Items)
        lines += Fill(optionLine,
                      {{u"URL", item == menuSeparator ? u"#" : TextView(url)}, {u"Item", item}});
    return lines;
}

} // namespace

std::optional<Complaint> Check(const MenuItem& item)
{
    if (item.txtMenuItem.empty())
        return Complaint{u"Enter menu item text in the text input box or click Cancel.",
                         "txtMenuItem"};
    if (item.txtMenuItemURL.empty())
        return Complaint{u"Enter a Web page URL in the text input box or click Cancel.",
                         "txtMenuItemURL"};
    return std::nullopt;
}

void Tidy(MenuItem& item)
{
    item.txtMenuItemURL = WithScheme(item.txtMenuItemURL);
}

std::optional<Complaint> CheckEdit(const MenuItem& item)
{
    if (item.txtMenuItem == menuSeparator)
        return Complaint{u"The separator can't be edited.  It can only be added or removed.", {}};
    return std::nullopt;
}

std::optional<Complaint> Check(const PulldownMenu& menu)
{
    if (menu.Items.empty())
        return Complaint{u"Please enter 1 or more menu items in the list below.", "List1"};
    return std::nullopt;
}

std::vector<Hint> HintsOf(const PulldownMenu& menu)
{
    return HintList().InScript("cboTarget", menu.cboTarget, u"'").Hints();
}

EffectPayload Generate(const PulldownMenu& menu)
{
    const bool showsAll = menu.optDisplay == MenuDisplay::AllItems;
    const Text size =
        showsAll ? Fill(sizePart, {{u"Count", NumberToText(static_cast<int>(menu.Items.size()))}})
                 : Text();
    return {
        .Kind = EffectKind::PulldownMenu,
        .BODYHTML = Fill(body, {{u"JumpLine", JumpLine(menu)},
                                {u"SizePart", size},
                                {u"OptionLines", OptionLines(menu)}}),
    };
}

} // namespace orvane
