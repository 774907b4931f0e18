#include "windows/block_rows.h"

#include "core/block.h"
#include "core/pick_lists.h"
#include "services/block_fields.h"
#include "services/file_requests.h"
#include "services/picture_look.h"
#include "windows/row_form.h"

#include <array>
#include <span>

namespace orvane {

namespace {

constexpr TextView asOnPage = u"As on the page";

constexpr ChoiceItem fonts[] = {{u"", asOnPage},
                                {u"Arial, sans-serif", u"Arial"},
                                {u"Verdana, sans-serif", u"Verdana"},
                                {u"Tahoma, sans-serif", u"Tahoma"},
                                {u"Trebuchet MS, sans-serif", u"Trebuchet MS"},
                                {u"Impact, sans-serif", u"Impact"},
                                {u"Georgia, serif", u"Georgia"},
                                {u"Times New Roman, serif", u"Times New Roman"},
                                {u"Courier New, monospace", u"Courier New"},
                                {u"Comic Sans MS, cursive", u"Comic Sans MS"}};

constexpr ChoiceItem sizes[] = {{u"0", asOnPage}, {u"12"}, {u"14"}, {u"16"}, {u"18"},
                                {u"20"},          {u"24"}, {u"28"}, {u"32"}, {u"40"},
                                {u"48"},          {u"64"}, {u"80"}};

constexpr ChoiceItem styles[] = {{u"", asOnPage},
                                 {u"plain", u"Plain"},
                                 {u"bold", u"Bold"},
                                 {u"italic", u"Italic"},
                                 {u"bold italic", u"Bold italic"}};

constexpr std::array<ChoiceItem, 4> alignments = {
    {{u"", asOnPage}, {u"left", u"Left"}, {u"center", u"Center"}, {u"right", u"Right"}}};

constexpr ChoiceItem directions[] = {{u"left", u"From right to left"},
                                     {u"right", u"From left to right"}};

constexpr ChoiceItem times[] = {{u"0", u"For ever"},
                                {u"1"},
                                {u"2"},
                                {u"3"},
                                {u"4"},
                                {u"5"},
                                {u"6"},
                                {u"7"},
                                {u"8"},
                                {u"9"},
                                {u"10"}};

constexpr ChoiceItem targets[] = {{u"", u"The same window"},
                                  {u"_blank", u"A new window"},
                                  {u"_parent", u"The frame around"},
                                  {u"_top", u"The whole window"}};

constexpr auto changes = [] {
    std::array<ChoiceItem, pictureChanges.size()> items;
    items[0] = {pictureChanges[0], u"At once"};
    items[1] = {pictureChanges[1], u"Fade"};
    for (std::size_t i = 0; i < RevealTransitions.size(); ++i)
        items[i + 2] = {pictureChanges[i + 2], RevealTransitions[i]};
    return items;
}();

constexpr ChoiceItem fits[] = {{u"contain", u"Show all of each picture"},
                               {u"cover", u"Fill the size, cut what is over"},
                               {u"fill", u"Stretch to the size"}};

void AddLineFields(PageBuilder& page)
{
    page.TextBox("txtWords", u"&Text:", u"The text of this item");
    AddLink(page);
}

void AddLinesFields(PageBuilder& page)
{
    page.MultiLineBox("txtWords", u"&Text:", u"The text of this item, of one or more lines");
    AddLink(page);
}

} // namespace

RowListPanel* AddMessageList(PageBuilder& page, EffectKind kind, MessageText text, Workbench& bench)
{
    return AddRowList<BlockRow>(
        page, {{"lstMessages", u"Messages:"}, {"lstLinks", u"Link to this URL:"}},
        {.Name = "frmMessage",
         .Title = u"Message and its link",
         .Kind = kind,
         .Letters = 70,
         .AddFields = text == MessageText::OneLine ? &AddLineFields : &AddLinesFields},
        bench);
}

void AddLink(PageBuilder& page, TextView tip)
{
    page.BrowseRow("txtLink", u"&Link to Web page:", tip,
                   {.Button = "cmdBrowseForURL",
                    .Caption = u"&Browse for URL...",
                    .Request = BrowseRequest(pageFiles, FolderPurpose::Links),
                    .GivesFocus = true});
}

void AddFont(PageBuilder& page)
{
    page.OpenChoiceBox("cboFont", u"&Font:", fonts,
                       u"The font of the text, or several with commas between them");
    page.OpenChoiceBox("cboFontSize", u"Font si&ze:", sizes, u"The size of the text", u"pixels");
    page.ChoiceBox("cboFontStyle", u"Font st&yle:", styles);
}

void AddTextLook(PageBuilder& page)
{
    AddFont(page);
    AddPageColor(page, "cmdTextColor", u"Te&xt color:");
}

void AddPageColor(PageBuilder& page, ControlName name, TextView label)
{
    page.ColorSwatch(name, label, ColorNotation::Hash, asOnPage,
                     u"Click here to select a color; Delete takes it away");
}

void AddAlignment(PageBuilder& page, PageAlignment ofPage)
{
    const std::span all(alignments);
    page.ChoiceBox("cboAlign", u"&Align text:",
                   ofPage == PageAlignment::Offered ? all : all.subspan(1));
}

void AddDirection(PageBuilder& page, TextView label)
{
    page.ChoiceBox("cboDirection", label, directions);
}

void AddTimes(PageBuilder& page)
{
    page.Narrow(
        page.OpenChoiceBox("cboTimes", u"&How often:", times, u"How many times all of it runs"));
}

void AddChange(PageBuilder& page, ControlName name, TextView label, TextView tip)
{
    page.ChoiceBox(name, label, changes, tip);
}

void AddTransition(PageBuilder& page, ControlName name, TextView label)
{
    page.ChoiceBox(name, label, std::span(changes).subspan(2));
}

void AddPictureSize(PageBuilder& page)
{
    page.NumberBox("txtWidth", u"&Width:", u"0 is as wide as the pictures", u"pixels");
    page.NumberBox("txtHeight", u"&Height:", u"0 is as high as the pictures", u"pixels");
    page.ChoiceBox("cboFit", u"In this &size:", fits);
}

void AddTarget(PageBuilder& page)
{
    page.OpenChoiceBox("cboTarget", u"Links &open in:", targets,
                       u"The window or frame in which a link opens");
}

void AddWidth(PageBuilder& page, TextView unit)
{
    page.NumberBox("txtWidth", u"&Width:", u"The width of the effect", unit);
}

} // namespace orvane
