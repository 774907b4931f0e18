#include "delivery/delivery_flow.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace orvane::testing {
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

DeliveryFacts Without(bool DeliveryFacts::*fact)
{
    DeliveryFacts facts = everything;
    facts.*fact = false;
    return facts;
}

TEST(DeliveryFlowTest, VisitsTheseAndOnlyThesePagesThereAndBack)
{
    constexpr auto manual = InsertMode::ManualCopy;
    constexpr DeliveryFacts onlyEvents{
        .HasEvents = true, .HasAttribute = true, .IsEditorKnown = true};
    const std::tuple<InsertMode, DeliveryFacts, std::vector<int>> paths[] = {
        {InsertMode::NewPage, everything, {1, 3, 4, 9}},
        {InsertMode::AutoInsert, Without(&DeliveryFacts::IsEditorKnown), {1, 3, 4, 9}},
        {manual, everything, {1, 3, 5, 6, 7, 8, 9}},
        {manual, Without(&DeliveryFacts::HasHead), {1, 3, 6, 7, 8, 9}},
        {manual, Without(&DeliveryFacts::HasBody), {1, 3, 5, 7, 8, 9}},
        {manual, Without(&DeliveryFacts::NeedsFiles), {1, 3, 5, 6, 7, 9}},
        {manual, onlyEvents, {1, 3, 7, 9}},
        {manual, {.HasHead = true, .IsEditorKnown = true}, {1, 3, 5, 9}}};
    for (const auto& [mode, facts, pages] : paths) {
        EXPECT_EQ(PagesForward(mode, facts), pages);
        std::vector<int> back(pages.rbegin(), pages.rend());
        back.push_back(0);
        EXPECT_EQ(PagesBackward(mode, facts), back);
    }
}

TEST(DeliveryFlowTest, AsksForTheEditorBehindTheMethodAndOnlyForCopyingByHand)
{
    constexpr auto manual = InsertMode::ManualCopy;
    DeliveryFacts facts = Without(&DeliveryFacts::IsEditorKnown);
    EXPECT_EQ(PagesForward(manual, facts), (std::vector{1, 3, 2, 5, 6, 7, 8, 9}));
    EXPECT_EQ(PreviousStep({2, 3}, manual, facts), (DeliveryStep{3, 2}));
    facts.IsEditorKnown = true;
    EXPECT_EQ(NextStep({2, 3}, manual, facts), (DeliveryStep{5, 4}));
    EXPECT_EQ(PreviousStep({5, 4}, manual, facts), (DeliveryStep{3, 3}));
    EXPECT_EQ(DescribePage({1, 2}, manual).Heading, u"Step 1: Preview your special effect");
}

TEST(DeliveryFlowTest, PageForAnExistingAndForANewPageDiffer)
{
    EXPECT_EQ(DescribePage({4, 3}, InsertMode::AutoInsert).HelpContext, 49);
    const DeliveryPage page = DescribePage({4, 3}, InsertMode::NewPage);
    EXPECT_EQ(page.HelpContext, 51);
    EXPECT_EQ(page.Heading, u"Step 3: Create a new Web page");
}

} // namespace
} // namespace orvane::testing
