#include "delivery/ftp_panel.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

namespace orvane {
namespace {

TEST(FtpPanelTest, OpensWithTheNewestServerAndItsUser)
{
    testing::FakeSettings settings;
    settings.Put(u"FTP", u"Server1", u"ftp.b.example", u"Orvane");
    settings.Put(u"FTP", u"Username1", u"bob", u"Orvane");
    FtpPanel panel(settings);
    EXPECT_EQ(testing::WordsOf(panel, "cmbServerName"), u"ftp.b.example");
    EXPECT_EQ(testing::WordsOf(panel, "Text3(0)"), u"bob");
}

} // namespace
} // namespace orvane
