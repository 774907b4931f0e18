#include "preview/live_page.h"

#include "preview/live_files.h"
#include "tests/support/doubles.h"
#include "tests/support/expect_text.h"

namespace orvane::testing {
namespace {

class LivePageTest : public ::testing::Test
{
protected:
    LivePicture In(std::string page) const
    {
        return PictureOf(m_effect, HostPage{u"/site/index.html", std::move(page)}, m_files,
                         u"/program");
    }

    FakeFileStore m_files;
    EffectPayload m_effect{.Kind = EffectKind::PopupAlert, .BODYHTML = u"<b>new</b>\r\n"};
};

TEST_F(LivePageTest, ShowsTheAuthorsPageAsAutoInsertWouldLeaveIt)
{
    const LivePicture picture = In("<html><head></head><body>\r\nOld</body></html>");
    EXPECT_EQ(*picture.Page.Bytes,
              "<html><head></head><body>\r\r\n"
              "<!-- ***** Begin:Varlo Popup Alert special effect ***** -->\r\n<b>new</b>\r\n"
              "<!-- ***** End:Varlo Popup Alert special effect ***** -->\r\n\r\nOld</body></html>");
    EXPECT_EQ(picture.Page.Name, u"index.html");
    EXPECT_EQ(picture.Page.Folder, u"/site/");
    EXPECT_EQ(picture.Page.Mark, u" ***** Begin:Varlo Popup Alert special effect ***** ");
    EXPECT_EQ(picture.Line, u"");
}

TEST_F(LivePageTest, ShowsAnEmptyPageWhereAutoInsertFindsNoPlaceAndSaysSo)
{
    for (const auto& [page, why] :
         {std::pair{std::string("<p>no tags"), u""},
          std::pair{"<body>" + std::string(40000, 'x') + "</body>", u"  (Overflow)"}}) {
        const LivePicture picture = In(page);
        EXPECT_EQ(picture.Line, Join({u"Auto-insert finds no place for the special effect in this "
                                      u"page, so it is shown in an empty one.",
                                      why}));
        EXPECT_NE(picture.Page.Bytes->find("<b>new</b>"), std::string::npos);
        EXPECT_EQ(picture.Page.Folder, u"") << "it is not the author's page";
    }
}

TEST_F(LivePageTest, NamesTheButtonBesideTheFieldsAndLeavesTheEffectAsItIs)
{
    m_effect.Kind = EffectKind::RandomQuote;
    m_effect.BODYHTML = u"My <b>Refresh</b>";
    const std::string page(PictureOf(m_effect, std::nullopt, m_files, u"/program").Page.Bytes);
    EXPECT_NE(page.find("Click the <b>Run again</b> button"), std::string::npos);
    EXPECT_NE(page.find("My <b>Refresh</b>"), std::string::npos);
}

TEST_F(LivePageTest, FindsItsFilesWhereTheyLieAndNamesTheOthers)
{
    m_effect.Kind = EffectKind::StatusBarTicker;
    m_effect.Required.RequiredFileNames = {u"a.gif", u"gone.gif", u"beside.gif", u"typed.gif"};
    m_effect.Required.RequiredFileSources = {u"/pics/a.gif", u"/pics/gone.gif"};
    m_effect.SupportFiles = {u"made.txt", u"password.cgi"};
    m_effect.MadeFiles = {{u"made.txt", "words"}, {u"secret.txt", "password", true}};
    for (const TextView path : {u"/pics/a.gif", u"/site/beside.gif", u"/program/made.txt"})
        m_files.Contents[Text(path)] = "";
    const LivePicture picture = In("<head></head><body></body>");
    EXPECT_EQ(picture.Line, u"Shown as with 'Make it run in today's browsers'.");
    EXPECT_EQ(picture.Page.Note, u"Not found: gone.gif, typed.gif, password.cgi.");
    EXPECT_EQ(FileOf(picture.Page, u"made.txt"), (PaneFile{u"made.txt", {}, std::string("words")}));
    EXPECT_EQ(FileOf(picture.Page, u"a.gif"), (PaneFile{u"a.gif", u"/pics/a.gif"}));
    EXPECT_EQ(FileOf(picture.Page, u"orvane.js"), (PaneFile{u"orvane.js", u"/program/orvane.js"}));
    EXPECT_EQ(FileOf(picture.Page, u"index.html")->Bytes, picture.Page.Bytes);
    for (const TextView name : {u"password.cgi", u"secret.txt", u"elsewhere.gif", u"a.gif/"})
        EXPECT_FALSE(FileOf(picture.Page, name)) << ToUtf8(name);
}

struct MotionCase
{
    const char* Code;
    const char* Answered;
};
class ReducedMotionTest : public ::testing::TestWithParam<MotionCase>
{
};
TEST_P(ReducedMotionTest, AnswersWhoAsksForIt)
{
    EXPECT_EQ(WithReducedMotion(GetParam().Code), GetParam().Answered);
}
INSTANTIATE_TEST_SUITE_P(
    , ReducedMotionTest,
    ::testing::Values(
        MotionCase{"a{} @media(prefers-reduced-motion:reduce){b{}}",
                   "a{} @media(min-width:0){b{}}"},
        MotionCase{
            "matchMedia('(Prefers-Reduced-Motion : no-preference)') (prefers-reduced-motion)",
            "matchMedia('(max-width:0)') (min-width:0)"},
        MotionCase{"no question", "no question"}));

} // namespace
} // namespace orvane::testing
