#include "preview/page_folder.h"

#include "tests/support/test_folder.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

/// /<temporary>/pages with files and links, /<temporary>/pages2 and /<temporary>/other beside it.
class PageFolderTest : public ::testing::Test
{
protected:
    PageFolderTest()
    {
        for (const char* folder : {"pages", "pages/sub", "pages2", "other"})
            m_root.MakeFolder(folder);
        for (const char* file : {"pages/page.html", "pages/sub/a.gif", "pages2/a.gif",
                                 "other/a.gif", "pages/password.cgi", "pages/100% caf\u00e9.gif"})
            m_root.Put(file, "x");
        m_root.Link(m_root.At("other"), "pages/out");
        m_root.Link(m_root.At("other/a.gif"), "pages/out.gif");
        m_root.Link("sub/a.gif", "pages/in.gif");
        m_root.Link("loop.gif", "pages/loop.gif");
        m_root.Link("100% caf\u00e9.gif", "pages/same.gif");
        m_root.Link("pages", "linked");
    }

    bool Holds(const char* page, const char* path) const
    {
        const PageFolder folder(Path(page), {u"100% caf\u00e9.gif", u"a.gif", u"out.gif", u"in.gif",
                                             u"loop.gif", u"missing.gif", u"same.gif"});
        return folder.Holds(Path(path));
    }
    Text Path(const char* path) const { return m_root.TextAt(path); }

    TestFolder m_root;
};

TEST_F(PageFolderTest, HoldsThePageAndItsFilesOnceLinksAreResolved)
{
    for (const char* path : {"pages/page.html", "pages/sub/../page.html", "pages/same.gif",
                             "pages/100% caf\u00e9.gif", "linked/100% caf\u00e9.gif"})
        for (const char* page : {"pages/page.html", "linked/page.html"})
            EXPECT_TRUE(Holds(page, path)) << page << " " << path;
}

TEST_F(PageFolderTest, HoldsNothingElse)
{
    for (const char* path : {"pages/password.cgi", "pages/sub/a.gif", "pages/in.gif", "other/a.gif",
                             "pages/out/a.gif", "pages/out.gif", "pages2/a.gif", "pages", "pages/",
                             "pages/missing.gif", "pages/loop.gif", "/"})
        EXPECT_FALSE(Holds("pages/page.html", path)) << path;
    EXPECT_FALSE(Holds("missing/page.html", "pages/page.html"));
    EXPECT_FALSE(PageFolder().Holds(Path("pages/page.html")));
}

TEST_F(PageFolderTest, ALivePageReadsWhatLiesInItsFolderOrBelow)
{
    m_root.MakeFolder("pages/.hidden");
    for (const char* file : {"pages/.htaccess", "pages/.hidden/a.gif"})
        m_root.Put(file, "x");
    for (const TextView name : {u"page.html", u"sub/a.gif", u"in.gif", u"sub/../same.gif"})
        EXPECT_TRUE(FileBelow(Path("linked"), name)) << ToUtf8(name);
    EXPECT_EQ(FileBelow(Path("pages"), u"in.gif"), Path("pages/sub/a.gif"));
    for (const TextView name :
         {u"", u"sub", u"out.gif", u"out/a.gif", u"../other/a.gif", u"../pages2/a.gif", u"loop.gif",
          u"missing.gif", u"password.cgi", u".htaccess", u".hidden/a.gif", u"/etc/hostname"})
        EXPECT_FALSE(FileBelow(Path("pages"), name)) << ToUtf8(name);
    EXPECT_FALSE(FileBelow({}, u"etc/hostname"));
}

} // namespace
} // namespace orvane::testing
