#include "services/row_list.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

using Row = std::optional<std::size_t>;

RowList ListOf(std::initializer_list<TextView> names, Row selected)
{
    RowList list{.Rows = {}, .Selected = selected};
    for (const TextView name : names)
        list.Rows.push_back({Text(name)});
    return list;
}

std::string NamesIn(const RowList& list)
{
    Text names;
    for (const FieldTexts& row : list.Rows)
        names.append(row.front()).append(u" ");
    return ToUtf8(names);
}

TEST(RowListTest, NewRowsGoInFrontOfTheSelectedOneOrToTheEnd)
{
    const std::tuple<Row, const char*, Row> cases[] = {{Row(), "a b c new 2 ", 4},
                                                       {0, "new 2 a b c ", 2},
                                                       {1, "a new 2 b c ", 3},
                                                       {2, "a b c new 2 ", 4}};
    for (const auto& [selected, order, selectedAfter] : cases) {
        RowList list = ListOf({u"a", u"b", u"c"}, selected);
        InsertRows(list, PlaceToInsert(list), {{u"new"}, {u"2"}});
        EXPECT_EQ(NamesIn(list), order);
        EXPECT_EQ(list.Selected, selectedAfter);
    }
}

TEST(RowListTest, RemovingSelectsTheNextRowAndNoneBehindTheLastAndEachComesBack)
{
    RowList list = ListOf({u"a", u"b", u"c"}, 1);
    EXPECT_EQ(RemoveRow(list, {}), std::nullopt);
    EXPECT_EQ(NamesIn(list), "a c ");
    EXPECT_EQ(list.Selected, 1u);
    EXPECT_EQ(RemoveRow(list, {}), std::nullopt);
    EXPECT_EQ(list.Selected, std::nullopt);
    EXPECT_EQ(RemoveRow(list, {.RemoveEmpty = u"empty", .RemoveNone = u"none"})->Words, u"none");
    EXPECT_TRUE(PutRowBack(list));
    EXPECT_EQ(NamesIn(list), "a c ");
    list.Rows.clear();
    EXPECT_TRUE(PutRowBack(list));
    EXPECT_EQ(NamesIn(list), "b ") << "at the end of a list that is too short by now";
    EXPECT_EQ(list.Selected, 0u);
    EXPECT_FALSE(PutRowBack(list));
}

TEST(RowListTest, DraggedRowStandsWhereItWasDropped)
{
    const std::tuple<std::size_t, std::size_t, const char*> cases[] = {
        {0, 2, "b c a d "}, {3, 1, "a d b c "}, {1, 1, "a b c d "}, {0, 3, "b c d a "}};
    for (const auto& [from, to, order] : cases) {
        RowList list = ListOf({u"a", u"b", u"c", u"d"}, from);
        MoveSelectedTo(list, to);
        EXPECT_EQ(NamesIn(list), order);
        EXPECT_EQ(list.Selected, to);
    }
}

TEST(RowListTest, MovingBeyondAnEndOrNothingIsAComplaint)
{
    const RowListWords words{.CannotMoveUp = u"up", .CannotMoveDown = u"down"};
    for (RowList list : {ListOf({u"a", u"b"}, 0), ListOf({u"a", u"b"}, {}), ListOf({}, {})})
        EXPECT_EQ(MoveRowUp(list, words)->Words, u"up");
    for (RowList list : {ListOf({u"a", u"b"}, 1), ListOf({u"a", u"b"}, {}), ListOf({}, {})})
        EXPECT_EQ(MoveRowDown(list, words)->Words, u"down");
}

} // namespace
} // namespace orvane::testing
