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
                                 "other/a.gif", "pages/100% caf\u00e9.gif"})
            m_root.Put(file, "x");
        m_root.Link(m_root.At("other"), "pages/out");
        m_root.Link(m_root.At("other/a.gif"), "pages/out.gif");
        m_root.Link("sub/a.gif", "pages/in.gif");
        m_root.Link("loop.gif", "pages/loop.gif");
        m_root.Link("pages", "linked");
    }

    bool Holds(const char* page, const char* path) const
    {
        return PageFolder(Path(page)).Holds(Path(path));
    }
    Text Path(const char* path) const { return m_root.TextAt(path); }

    TestFolder m_root;
};

TEST_F(PageFolderTest, HoldsWhatLiesBelowItOnceLinksAreResolved)
{
    for (const char* path : {"pages/sub/a.gif", "pages/sub/../page.html", "other/../pages/in.gif",
                             "pages/100% caf\u00e9.gif", "linked/sub/a.gif"})
        for (const char* page : {"pages/page.html", "linked/page.html", "pages/gone.html"})
            EXPECT_TRUE(Holds(page, path)) << page << " " << path;
}

TEST_F(PageFolderTest, HoldsNothingElse)
{
    for (const char* path : {"other/a.gif", "pages/../other/a.gif", "pages/out/a.gif",
                             "pages/out.gif", "pages/sub/../../other/a.gif", "pages2/a.gif",
                             "pages", "pages/", "pages/missing.gif", "pages/loop.gif", "/"})
        EXPECT_FALSE(Holds("pages/page.html", path)) << path;
    EXPECT_FALSE(Holds("missing/page.html", "pages/sub/a.gif"));
    EXPECT_FALSE(PageFolder().Holds(Path("pages/sub/a.gif")));
}

} // namespace
} // namespace orvane::testing
