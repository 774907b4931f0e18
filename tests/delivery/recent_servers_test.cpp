#include "delivery/recent_servers.h"

#include "tests/support/doubles.h"

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

TEST(RecentServersTest, PutsTheNewestFirstAndDropsTheOldest)
{
    FakeSettings settings;
    for (TextView name : {u"a", u"b", u"c", u"d", u"e", u"f"})
        PutRecentFTP(settings, name, Join({name, name}));
    EXPECT_EQ(Listing(settings), u"f=ff e=ee d=dd c=cc b=bb ");
}

TEST(RecentServersTest, LeavesAListedServerWhereItIsAndTellsCasesApart)
{
    FakeSettings settings;
    PutRecentFTP(settings, u"host", u"ann");
    PutRecentFTP(settings, u"other", u"bob");
    PutRecentFTP(settings, u"host", u"carl");
    EXPECT_EQ(Listing(settings), u"other=bob host=ann = = = ");
    PutRecentFTP(settings, u"Host", u"carl");
    EXPECT_EQ(Listing(settings), u"Host=carl other=bob host=ann = = ");
}

TEST(RecentServersTest, StoresAnEmptyNameOnlyWhenNoSlotIsEmpty)
{
    FakeSettings settings;
    PutRecentFTP(settings, u"", u"nobody");
    EXPECT_EQ(settings.Writes, std::vector<Text>());
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
}

TEST(RecentServersTest, FindsTheUserNameOfAServer)
{
    FakeSettings settings;
    PutRecentFTP(settings, u"host", u"ann");
    PutRecentFTP(settings, u"other", u"bob");
    EXPECT_EQ(UsernameFor(settings, u"host"), u"ann");
    EXPECT_EQ(UsernameFor(settings, u"HOST"), std::nullopt);
}

} // namespace
} // namespace orvane::testing
