#include "services/image_list.h"

#include "services/move_row.h"

#include "tests/support/doubles.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

ImageList ListOf(std::initializer_list<TextView> names, std::optional<std::size_t> selected)
{
    ImageList list{.Rows = {}, .Selected = selected};
    for (const TextView name : names)
        list.Rows.push_back({.FileName = Text(name)});
    return list;
}

std::optional<Complaint> Add(ImageList& list, OrvaneCore& core, TextView folder, TextView name)
{
    return AddImageToList(list, core, PlaceToAdd(list), folder, name);
}

std::string NamesIn(const ImageList& list)
{
    Text names;
    for (const ImageRow& row : list.Rows)
        names.append(row.FileName).append(u" ");
    return ToUtf8(names);
}

TEST(ImageListTest, NewImageGoesInFrontOfTheSelectedOneOrToTheEnd)
{
    using Row = std::optional<std::size_t>;
    const std::tuple<Row, const char*, Row> cases[] = {
        {Row(), "a b c new ", 3}, {0, "new a b c ", 1}, {1, "a new b c ", 2}, {2, "a b c new ", 3}};
    for (const auto& [selected, order, selectedAfter] : cases) {
        OrvaneCore core;
        ImageList list = ListOf({u"a", u"b", u"c"}, selected);
        EXPECT_EQ(Add(list, core, u"/x", u"new"), std::nullopt);
        EXPECT_EQ(NamesIn(list), order);
        EXPECT_EQ(list.Selected, selectedAfter);
    }
}

TEST(ImageListTest, RefusesABlankInTheNameButNotAroundItNorInTheFolder)
{
    OrvaneCore core;
    ImageList list = ListOf({u"a"}, 0);
    const auto complaint = Add(list, core, u"/x", u"my pic.gif");
    ASSERT_TRUE(complaint);
    EXPECT_EQ(ToUtf8(complaint->Words),
              "This special effect does not allow image filenames containing space "
              "characters.\r\nPlease rename the image or select another image.\r\nmy pic.gif");
    EXPECT_EQ(list, ListOf({u"a"}, 0));
    EXPECT_EQ(core.RequiredFileCount, 0);

    EXPECT_EQ(Add(list, core, u"/my pictures", u" pic.gif"), std::nullopt);
    EXPECT_EQ(list.Rows[1].FileName, u" pic.gif");
    EXPECT_EQ(core.Required.Sources[0], u"/my pictures/ pic.gif");
}

TEST(ImageListTest, FiftySecondImageJoinsTheListButIsNotRecorded)
{
    OrvaneCore core;
    ImageList list;
    for (int i = 0; i < 52; ++i)
        Add(list, core, u"/x", FromUtf8(std::to_string(i)));
    EXPECT_EQ(list.Rows.size(), 52u);
    EXPECT_EQ(core.Required.Names[50], u"50");
    EXPECT_EQ(core.RequiredFileCount, 52);
    list.Selected = 0;
    DeleteRow(list);
    EXPECT_EQ(core.Required.Names[0], u"0") << "it stays recorded though it left the list";

    core.RequiredFileCount = 32767;
    EXPECT_EQ(Add(list, core, u"/x", u"more"), std::nullopt);
    EXPECT_EQ(core.RequiredFileCount, 32767);
}

TEST(ImageListTest, DeleteSelectsTheNextImageAndNoneBehindTheLast)
{
    ImageList list = ListOf({u"a", u"b", u"c"}, 1);
    DeleteRow(list);
    EXPECT_EQ(list, ListOf({u"a", u"c"}, 1));
    DeleteRow(list);
    EXPECT_EQ(list, ListOf({u"a"}, std::nullopt));
    DeleteRow(list);
    EXPECT_EQ(list, ListOf({u"a"}, std::nullopt));
}

TEST(ImageListTest, DraggedRowStandsWhereItWasDropped)
{
    const std::tuple<std::size_t, std::size_t, const char*> cases[] = {
        {0, 2, "b c a d "}, {3, 1, "a d b c "}, {1, 1, "a b c d "}, {0, 3, "b c d a "}};
    for (const auto& [from, to, order] : cases) {
        ImageList list = ListOf({u"a", u"b", u"c", u"d"}, from);
        MoveSelectedTo(list, to);
        EXPECT_EQ(NamesIn(list), order);
        EXPECT_EQ(list.Selected, to);
    }
}

TEST(ImageListTest, MovingBeyondAnEndOrNothingIsAComplaintOfThatWizard)
{
    constexpr TextView up = u"Select an item in the Animation image list.  You cannot move the "
                            u"first image upward.";
    constexpr TextView down = u"Select an item in the Slideshow image list.  You cannot move the "
                              u"last image downward.";
    for (ImageList list :
         {ListOf({u"a", u"b"}, 0), ListOf({u"a", u"b"}, std::nullopt), ListOf({}, {})})
        EXPECT_EQ(MoveUp(list, AnimatorImageList().ListInMessages)->Words, up);
    for (ImageList list :
         {ListOf({u"a", u"b"}, 1), ListOf({u"a", u"b"}, std::nullopt), ListOf({}, {})})
        EXPECT_EQ(MoveDown(list, SlideshowImageList().ListInMessages)->Words, down);
}

TEST(ImageListTest, SizeFieldsGrowToTheLargestPictureAndNeverShrink)
{
    EXPECT_EQ(GrownField(u"100", 80), u"100");
    EXPECT_EQ(GrownField(u"100", 120), u"120");
    EXPECT_EQ(GrownField(u"120", 90), u"120");
    EXPECT_EQ(GrownField(u"abc", 5), u"5");
    EXPECT_EQ(GrownField(u"", 0), u"");
    EXPECT_EQ(GrownField(u"90px", 80), u"90px");
}

} // namespace
} // namespace orvane::testing
