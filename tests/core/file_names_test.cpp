#include "core/file_names.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(FileNamesTest, ABackslashPartsFoldersEverywhereButInAFullPath)
{
    struct Row
    {
        TextView Path, Folder, Name;
    };
    for (const auto& [path, folder, name] :
         std::initializer_list<Row>{{u"/pics/a\\b.gif", u"/pics/", u"a\\b.gif"},
                                    {u"/my\\pics/b.gif", u"/my\\pics/", u"b.gif"},
                                    {u"pics\\b.gif", u"pics\\", u"b.gif"},
                                    {u"C:\\a/b.gif", u"C:\\a/", u"b.gif"},
                                    {u"C:\\a/\\b.gif", u"C:\\a/\\", u"b.gif"},
                                    {u"b.gif", u"", u"b.gif"}}) {
        EXPECT_EQ(FolderOf(path), folder) << ToUtf8(path);
        EXPECT_EQ(GetFileName(path), name) << ToUtf8(path);
    }
    EXPECT_EQ(PathIn(u"/my\\", u"b.gif"), u"/my\\/b.gif");
    EXPECT_EQ(PathIn(u"C:\\", u"b.gif"), u"C:\\b.gif");
    EXPECT_EQ(PathIn(u"", u"b.gif"), u"/b.gif");
}

TEST(FileNamesTest, AnAuthorReadsThemInTheOrderOfTheirNumbers)
{
    const TextView inOrder[] = {u"",
                                u"A.gif",
                                u"a.png",
                                u"b.gif",
                                u"b0.gif",
                                u"b2.gif",
                                u"B02.gif2",
                                u"b10.gif",
                                u"b99999999999.gif",
                                u"b100000000000.gif"};
    for (const TextView& name : inOrder)
        for (const TextView& other : inOrder)
            EXPECT_EQ(ComesBefore(name, other), &name < &other) << ToUtf8(name) << ToUtf8(other);
}

} // namespace
} // namespace orvane::testing
