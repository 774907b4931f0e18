#include "effects/text/random_quote_form.h"

#include "windows/block_rows.h"
#include "windows/picture_list_panel.h"
#include "windows/row_form.h"

namespace orvane {

namespace {

constexpr ControlName name = "frmRandom";
constexpr TextView heading = u"Random Quote";
constexpr TextView imageHeading = u"Random Image";

constexpr ChoiceItem rules[] = {{u"visit", u"At each visit, each once before one comes again"},
                                {u"day", u"Every day"},
                                {u"chance", u"At each visit, by pure chance"},
                                {u"seconds", u"Every few seconds"}};

void AddQuoteFields(PageBuilder& page)
{
    page.MultiLineBox("txtWords", u"&Quote:", u"The text, of one or more lines");
    page.TextBox("txtAuthor", u"&Author:", u"Who said it; empty for none");
    AddLink(page);
}

constexpr RowLook quoteWindow{.Name = "frmQuote",
                              .Title = u"Quote",
                              .Kind = EffectKind::RandomQuote,
                              .Letters = 70,
                              .AddFields = &AddQuoteFields};

} // namespace

RandomQuoteForm::RandomQuoteForm(Workbench& bench, QWidget* parent)
    : EffectForm(name, bench, parent)
{
    PageBuilder quotes = AddPage({heading, u"Enter the quotes or other texts, of which your Web "
                                           u"page shows one at a time."});
    AddRowList<QuoteRow>(
        quotes,
        {{"lstQuotes", u"Quotes:"}, {"lstAuthors", u"Author:"}, {"lstLinks", u"Link to this URL:"}},
        quoteWindow, bench);

    PageBuilder rule = AddPage({heading, u"Choose when another quote comes.  What a visitor has "
                                         u"seen is kept in the visitor's own browser; nothing is "
                                         u"sent anywhere."});
    rule.ChoiceBox("cboRule", u"An&other quote comes:", rules);
    rule.NumberBox("txtSeconds", u"&Show each quote for:", {}, u"seconds");
    rule.CheckBox("chkQuotationMarks", u"Put it in &quotation marks");
    AddAlignment(rule);
    AddWidth(rule);
    rule.Fill();

    PageBuilder look = AddPage({heading, u"Choose what the quote looks like."});
    AddTextLook(look);
    AddPageColor(look, "cmdBackColor", u"&Background color:");
    look.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

RandomImageForm::RandomImageForm(Workbench& bench, QWidget* parent)
    : EffectForm(name, bench, parent)
{
    PageBuilder pictures = AddPage(
        {imageHeading,
         u"Add the pictures, of which your Web page shows one at a time.  Edit a picture to "
         u"give it a description and the Web page that it leads to.",
         "cmdAddPictures"});
    pictures.Fill(new PictureListPanel(EffectKind::RandomImage, PictureWords::Own, bench));

    PageBuilder rule = AddPage({imageHeading, u"Choose when another picture comes.  What a visitor "
                                              u"has seen is kept in the visitor's own browser; "
                                              u"nothing is sent anywhere."});
    rule.ChoiceBox("cboRule", u"&Another picture comes:", std::span(rules).first(3));
    AddPictureSize(rule);
    rule.NumberBox("txtBorder", u"&Border:", {}, u"pixels");
    AddPageColor(rule, "cmdBorderColor", u"Border co&lor:");
    AddTarget(rule);
    rule.Fill();

    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(8010, 6210)));
}

} // namespace orvane
