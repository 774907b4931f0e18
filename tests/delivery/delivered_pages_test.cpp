#include "delivery/delivered_pages.h"

#include "tests/support/doubles.h"

namespace orvane::testing {
namespace {

/// A run that wrote an all-in-one button, whose picture no catalogue lists, into pages.
class DeliveredPagesTest : public ::testing::Test
{
protected:
    Texts Lines()
    {
        return ReportLines(m_report, m_payload, LookAtPages(m_report, m_payload, m_disk));
    }

    FakeFileStore m_disk;
    DeliveryReport m_report;
    FinishedPayload m_payload = Finish({.Kind = EffectKind::AllInOneButton,
                                        .BODYHTML = u"<img src=\"go.gif\">",
                                        .SupportFiles = {u"A.class"}});
    const std::string m_code = ToBytes(m_payload.Effect.BODYHTML);
};

TEST_F(DeliveredPagesTest, TellsOfEachPageWhatLiesOnTheDiskNow)
{
    const std::string script = "<head><!-- Begin Orvane page script --><script src=orvane.js>"
                               "</script><!-- End Orvane page script --></head>";
    m_payload.Effect.Required.RequiredFileNames = {u"http://h/there.html", u"go.gif"};
    m_disk.Contents = {{u"/site/a.html", m_code},
                       {u"/site/go.gif", ""},
                       {u"/web/b.html", script + m_code},
                       {u"/site/gone.html", "<P>"},
                       {u"/p/ovtemp.html", "<P>"}};
    m_report.PageWritten(u"/site/a.html");
    m_report.PageWritten(u"/web/b.html");
    m_report.PageWritten(u"/site/gone.html");
    m_report.PagePublished(u"/p/ovtemp.html");
    const auto pages = LookAtPages(m_report, m_payload, m_disk);
    ASSERT_EQ(pages.size(), 4u);
    EXPECT_EQ(pages[0].Files, (std::vector<PageFile>{{u"go.gif", true}, {u"A.class", false}}));
    EXPECT_EQ(pages[1].Files, (std::vector<PageFile>{
                                  {u"go.gif", false}, {u"A.class", false}, {u"orvane.js", false}}));
    EXPECT_EQ(PagesWithoutScript(m_payload, pages), Texts{u"/site/a.html"});
    const Texts lines = Lines();
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_TRUE(lines[0].ends_with(u"The page script is not in: /site/a.html"));
    EXPECT_EQ(lines[1], u"Web page with the special effect in /site/: a.html");
    EXPECT_EQ(lines[2], u"Web page with the special effect in /web/: b.html");
    EXPECT_EQ(lines[3], u"No longer with the special effect in /site/: gone.html");
    m_disk.FailOn(u"/site/gone.html", Fault::PermissionDenied);
    EXPECT_EQ(Lines().size(), 3u) << "of what cannot be read nothing is said";
}

TEST_F(DeliveredPagesTest, NamesTheFilesOfCodeThatTheAuthorPastes)
{
    EXPECT_EQ(Lines(), Texts{u"Nothing was delivered: no Web page was written, no HTML code was "
                             u"copied and no file was published."});
    m_report.CodeCopied(pageScriptPart);
    EXPECT_FALSE(m_report.HasDelivered());
    EXPECT_TRUE(LookAtPages(m_report, m_payload, m_disk).empty());
    m_report.CodeCopied(u"BODY");
    EXPECT_TRUE(m_report.HasDelivered());
    const auto pages = LookAtPages(m_report, m_payload, m_disk);
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(pages[0].Files, (std::vector<PageFile>{{u"go.gif"}, {u"A.class"}}));
    EXPECT_EQ(Lines(), Texts{u"HTML code copied for you to paste: page script, BODY"});
}

TEST_F(DeliveredPagesTest, KnowsAnEffectWithoutCodeByItsCall)
{
    m_payload = Finish({.Kind = EffectKind::PopupWindow, .OnUnloadFunc = u"window.open"});
    m_report.PageWritten(u"/a.html");
    for (const bool holds : {true, false}) {
        m_disk.Contents[u"/a.html"] = holds ? "<body onunload=\"window.open('x')\">" : "<body>";
        EXPECT_EQ(HoldsEffect(m_disk, u"/a.html", m_payload), holds);
    }
}

} // namespace
} // namespace orvane::testing
