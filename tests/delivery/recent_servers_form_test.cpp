#include "delivery/recent_servers.h"

#include "delivery/ftp_panel.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

namespace orvane::testing {
namespace {

/// What the store holds, one text: "server=user" of each number, newest first.
Text Listing(const FakeSettings& settings)
{
    Text listing;
    for (const char16_t number : {u'1', u'2', u'3', u'4', u'5'}) {
        const Text digit(1, number);
        listing += Join({settings.Get(u"FTP", u"Server" + digit, u"", u"Orvane"), u"=",
                         settings.Get(u"FTP", u"Username" + digit, u"", u"Orvane"), u" "});
    }
    return listing;
}

TEST(RecentServersTest, PutsTheNewestFirstAndLeavesAListedOneWhereItIs)
{
    FakeSettings settings;
    for (TextView name : {u"a", u"b", u"c", u"d", u"e", u"f"})
        PutRecentFTP(settings, name, Join({name, name}));
    PutRecentFTP(settings, u"c", u"carl");
    EXPECT_EQ(Listing(settings), u"f=ff e=ee d=dd c=cc b=bb ");
    PutRecentFTP(settings, u"C", u"carl");
    EXPECT_EQ(Listing(settings), u"C=carl f=ff e=ee d=dd c=cc ");
    EXPECT_EQ(UsernameFor(settings, u"c"), u"cc");
    EXPECT_EQ(UsernameFor(settings, u"E"), std::nullopt);
}

TEST(RecentServersTest, StoresAnEmptyNameOnlyWhenNoSlotIsEmpty)
{
    FakeSettings settings;
    PutRecentFTP(settings, u"", u"nobody");
    EXPECT_EQ(settings.Writes, Texts());
    for (TextView name : {u"a", u"b", u"c", u"d", u"e"})
        PutRecentFTP(settings, name, u"");
    PutRecentFTP(settings, u"", u"nobody");
    EXPECT_EQ(Listing(settings), u"=nobody e= d= c= b= ");
}

TEST(RecentServersTest, ShowsTheFirstSlotAndListsTheFilledOnes)
{
    FakeSettings settings;
    settings.Put(u"FTP", u"Username1", u"nobody", u"Orvane");
    settings.Put(u"FTP", u"Server2", u"b", u"Orvane");
    settings.Put(u"FTP", u"Server5", u"e", u"Orvane");
    EXPECT_EQ(GetRecentFTP(settings), (RecentServers{{u"b", u"e"}, u"", u"nobody"}));
    PutRecentFTP(settings, u"a", u"ann");
    FtpPanel panel(settings);
    EXPECT_EQ(WordsOf(panel, "cmbServerName"), u"a");
    EXPECT_EQ(WordsOf(panel, "Text3(0)"), u"ann");
}

} // namespace
} // namespace orvane::testing
