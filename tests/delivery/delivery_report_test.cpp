#include "delivery/delivery_report.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

using Lines = std::vector<Text>;

TEST(DeliveryReportTest, TellsOfEachFolderWhatLiesThereNow)
{
    DeliveryReport report;
    EXPECT_EQ(report.Page(), u"");
    EXPECT_EQ(report.Folder(), u"");
    report.CodeCopied(u"page script");
    EXPECT_FALSE(report.HasDelivered());
    report.CodeCopied(u"HEAD");
    EXPECT_TRUE(report.HasDelivered());
    report.CodeCopied(u"BODY");
    report.CodeCopied(u"HEAD");
    report.PageWritten(u"/site/index.html");
    report.FileCopied(u"/site/", u"a.gif");
    report.FileMissing(u"/site/", u"b.gif");
    report.FileCopied(u"/other", u"b.gif");
    EXPECT_EQ(report.Lines(), (Lines{u"HTML code copied for you to paste: page script, HEAD, BODY",
                                     u"Web page with the special effect in /site/: index.html",
                                     u"Copied to /site/: a.gif", u"Missing in /site/: b.gif",
                                     u"Copied to /other/: b.gif"}));
    EXPECT_EQ(report.Page(), u"/site/index.html");
    EXPECT_EQ(report.Folder(), u"/other/");
    report.FileCopied(u"/site", u"b.gif");
    EXPECT_EQ(report.Lines().at(2), u"Copied to /site/: a.gif, b.gif");
    EXPECT_EQ(report.Lines().size(), 4u);
}

} // namespace
} // namespace orvane::testing
