#include "preview/page_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <stdlib.h>

namespace orvane::testing {
namespace {

namespace fs = std::filesystem;

/// /<temporary>/pages with files and links, /<temporary>/pages2 and /<temporary>/other beside it.
class PageFolderTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "orvane-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        m_root = name;
        for (const char* folder : {"pages/sub", "pages2", "other"})
            fs::create_directories(m_root / folder);
        for (const char* file : {"pages/page.html", "pages/sub/a.gif", "pages2/a.gif",
                                 "other/a.gif", "pages/100% caf\u00e9.gif"})
            std::ofstream(m_root / file) << "x";
        fs::create_symlink(m_root / "other", m_root / "pages/out");
        fs::create_symlink(m_root / "other/a.gif", m_root / "pages/out.gif");
        fs::create_symlink("sub/a.gif", m_root / "pages/in.gif");
        fs::create_symlink("loop.gif", m_root / "pages/loop.gif");
        fs::create_symlink("pages", m_root / "linked");
    }
    void TearDown() override { fs::remove_all(m_root); }

    bool Holds(const char* page, const char* path) const
    {
        return PageFolder(Path(page)).Holds(Path(path));
    }
    Text Path(const char* path) const { return FromUtf8((m_root / path).string()); }

    fs::path m_root;
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
