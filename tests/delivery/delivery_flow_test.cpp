#include "delivery/delivery_flow.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvane {
namespace {

constexpr DeliveryFacts everything{true, true, true, true, true, true};

/// The pages seen from the first one on, until "Finished!" or the way out.
std::vector<int> PagesForward(InsertMode mode, const DeliveryFacts& facts)
{
    std::vector<int> pages{1};
    for (DeliveryStep step; step.PageStep < 9; pages.push_back(step.PageStep))
        step = NextStep(step, mode, facts);
    return pages;
}

std::vector<int> PagesBackward(InsertMode mode, const DeliveryFacts& facts)
{
    std::vector<int> pages{9};
    for (DeliveryStep step{9, 9}; step.PageStep > 0; pages.push_back(step.PageStep))
        step = PreviousStep(step, mode, facts);
    return pages;
}

struct Path
{
    const char* Name;
    InsertMode Mode;
    DeliveryFacts Facts;
    std::vector<int> Forward;
    std::vector<int> Backward;
};

DeliveryFacts Without(bool DeliveryFacts::*fact)
{
    DeliveryFacts facts = everything;
    facts.*fact = false;
    return facts;
}

DeliveryFacts OnlyEvents()
{
    return {.HasEvents = true, .HasAttribute = true, .IsEditorKnown = true};
}

DeliveryFacts OnlyHead()
{
    return {.HasHead = true, .IsEditorKnown = true};
}

class DeliveryPathTest : public ::testing::TestWithParam<Path>
{
};

TEST_P(DeliveryPathTest, VisitsTheseAndOnlyThesePages)
{
    EXPECT_EQ(PagesForward(GetParam().Mode, GetParam().Facts), GetParam().Forward);
    EXPECT_EQ(PagesBackward(GetParam().Mode, GetParam().Facts), GetParam().Backward);
}

const auto manual = InsertMode::ManualCopy;

// clang-format off
INSTANTIATE_TEST_SUITE_P(Paths, DeliveryPathTest, ::testing::Values(
    Path{"newPage", InsertMode::NewPage, everything, {1, 3, 4, 9}, {9, 4, 3, 1, 0}},
    Path{"editorUnknown", InsertMode::AutoInsert, Without(&DeliveryFacts::IsEditorKnown), {1, 2, 3, 4, 9}, {9, 4, 3, 2, 1, 0}},
    Path{"manualAll", manual, everything, {1, 3, 5, 6, 7, 8, 9}, {9, 8, 7, 6, 5, 3, 1, 0}},
    Path{"noHead", manual, Without(&DeliveryFacts::HasHead), {1, 3, 6, 7, 8, 9}, {9, 8, 7, 6, 3, 1, 0}},
    Path{"noBody", manual, Without(&DeliveryFacts::HasBody), {1, 3, 5, 7, 8, 9}, {9, 8, 7, 5, 3, 1, 0}},
    Path{"noFiles", manual, Without(&DeliveryFacts::NeedsFiles), {1, 3, 5, 6, 7, 9}, {9, 7, 6, 5, 3, 1, 0}},
    Path{"onlyEvents", manual, OnlyEvents(), {1, 3, 7, 9}, {9, 7, 3, 1, 0}},
    Path{"onlyHead", manual, OnlyHead(), {1, 3, 5, 9}, {9, 5, 3, 1, 0}}),
    [](const auto& path) { return path.param.Name; });
// clang-format on

TEST(DeliveryFlowTest, NumbersThePagesSeenWithoutAGap)
{
    DeliveryStep step;
    for (const TextView heading :
         {u"Step 2: Select Method for Inserting your Special Effect",
          u"Step 3: Insert BODY Attribute HTML code into your Web page", u"Finished!"}) {
        step = NextStep(step, manual, OnlyEvents());
        EXPECT_EQ(DescribePage(step, manual).Heading, heading);
    }
}

TEST(DeliveryFlowTest, EditorChosenThenBackKeepsTheFirstHeadingAndTheCountedStep)
{
    DeliveryFacts facts = Without(&DeliveryFacts::IsEditorKnown);
    DeliveryStep step = NextStep({}, InsertMode::AutoInsert, facts);
    step = NextStep(step, InsertMode::AutoInsert, facts);
    facts.IsEditorKnown = true;
    step = PreviousStep(step, InsertMode::AutoInsert, facts);
    EXPECT_EQ(step, (DeliveryStep{1, 2}));
    EXPECT_EQ(DescribePage(step, InsertMode::AutoInsert).Heading,
              u"Step 1: Preview your special effect");
}

TEST(DeliveryFlowTest, PageForAnExistingAndForANewPageDiffer)
{
    EXPECT_EQ(DescribePage({4, 3}, InsertMode::AutoInsert).HelpContext, 49);
    const DeliveryPage page = DescribePage({4, 3}, InsertMode::NewPage);
    EXPECT_EQ(page.HelpContext, 51);
    EXPECT_EQ(page.Heading, u"Step 3: Create a new Web page");
}

} // namespace
} // namespace orvane
