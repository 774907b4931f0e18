#include "preview/page_boxes.h"

#include "tests/support/doubles.h"

#include <gtest/gtest.h>

#include <functional>

namespace orvane::testing {
namespace {

/// Dialogs that do something while a box is open.
class BusyDialogs : public FakeDialogs
{
public:
    std::function<void()> Meanwhile;
    PageBoxReply Answer(const PageBox& box) override
    {
        if (Meanwhile)
            std::exchange(Meanwhile, nullptr)();
        return FakeDialogs::Answer(box);
    }
};

TEST(PageBoxesTest, OffersToStopFromTheSecondBoxOfAPage)
{
    FakeDialogs dialogs;
    PageBoxes boxes(dialogs);
    for (int box = 0; box < 4; ++box) {
        dialogs.AnswerBox({.Accepted = true});
        if (box == 3)
            boxes.StartPage();
        EXPECT_TRUE(boxes.Answer({.Words = u"Hi", .OffersStop = true}).Accepted);
    }
    std::vector<bool> offers;
    for (const PageBox& box : dialogs.Boxes)
        offers.push_back(box.OffersStop);
    EXPECT_EQ(offers, (std::vector{false, true, true, false}));
}

TEST(PageBoxesTest, AStoppedPageShowsNoMoreUntilTheNextPage)
{
    FakeDialogs dialogs;
    PageBoxes boxes(dialogs);
    dialogs.AnswerBox({.Accepted = true, .Stop = true});
    EXPECT_TRUE(boxes.Answer({}).Accepted);
    EXPECT_FALSE(boxes.Answer({.Shape = PageBox::Kind::Confirm}).Accepted);
    EXPECT_EQ(dialogs.Boxes.size(), 1u);

    boxes.StartPage();
    dialogs.AnswerBox({.Accepted = true});
    EXPECT_TRUE(boxes.Answer({}).Accepted);
}

TEST(PageBoxesTest, ABoxBehindAnOpenOneIsDismissed)
{
    BusyDialogs dialogs;
    PageBoxes boxes(dialogs);
    dialogs.Meanwhile = [&] { EXPECT_FALSE(boxes.Answer({.Words = u"Inner"}).Accepted); };
    dialogs.AnswerBox({.Accepted = true});
    EXPECT_TRUE(boxes.Answer({.Words = u"Outer"}).Accepted);
    ASSERT_EQ(dialogs.Boxes.size(), 1u);
    EXPECT_EQ(dialogs.Boxes[0].Words, u"Outer");
}

} // namespace
} // namespace orvane::testing
