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

DeliveryFacts Without(bool DeliveryFacts::*fact, DeliveryFacts facts = everything)
{
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

INSTANTIATE_TEST_SUITE_P(
    Paths, DeliveryPathTest,
    ::testing::Values(
        Path{"auto", InsertMode::AutoInsert, everything, {1, 3, 4, 9}, {9, 4, 3, 1, 0}},
        Path{"newPage", InsertMode::NewPage, everything, {1, 3, 4, 9}, {9, 4, 3, 1, 0}},
        Path{"editorUnknown",
             InsertMode::AutoInsert,
             Without(&DeliveryFacts::IsEditorKnown),
             {1, 2, 3, 4, 9},
             {9, 4, 3, 2, 1, 0}},
        Path{"manualAll", manual, everything, {1, 3, 5, 6, 7, 8, 9}, {9, 8, 7, 6, 5, 3, 1, 0}},
        Path{"noHead",
             manual,
             Without(&DeliveryFacts::HasHead),
             {1, 3, 6, 7, 8, 9},
             {9, 8, 7, 6, 3, 1, 0}},
        Path{"noBody",
             manual,
             Without(&DeliveryFacts::HasBody),
             {1, 3, 5, 7, 8, 9},
             {9, 8, 7, 5, 3, 1, 0}},
        Path{"noFiles",
             manual,
             Without(&DeliveryFacts::NeedsFiles),
             {1, 3, 5, 6, 7, 9},
             {9, 7, 6, 5, 3, 1, 0}},
        Path{"onlyEvents", manual, OnlyEvents(), {1, 3, 7, 9}, {9, 7, 3, 1, 0}},
        Path{"onlyHead", manual, OnlyHead(), {1, 3, 5, 9}, {9, 5, 3, 1, 0}}),
    [](const auto& path) { return path.param.Name; });

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

struct PageCase
{
    int Page;
    InsertMode Mode;
    int Panel;
    TextView Heading;
    TextView SubHeading;
    int Topic;
};

class DeliveryPageTest : public ::testing::TestWithParam<PageCase>
{
};

TEST_P(DeliveryPageTest, HasItsPanelWordsAndTopic)
{
    const PageCase& wanted = GetParam();
    const DeliveryPage page =
        DescribePage({static_cast<std::int16_t>(wanted.Page), 7}, wanted.Mode);
    EXPECT_EQ(page, (DeliveryPage{wanted.Panel, Text(wanted.Heading), Text(wanted.SubHeading),
                                  wanted.Topic}));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Pages, DeliveryPageTest, ::testing::Values(
    PageCase{1, InsertMode::AutoInsert, 0, u"Step 1: Preview your special effect",
             u"View your special effect in the Preview window below.  Click the 'Preview in Browser' button to view the special effect in your default Web browser.", 22},
    PageCase{2, InsertMode::AutoInsert, 1, u"Step 7: Select your Web page Editor",
             u"Select the Web page (HTML) editor that you normally use to create your Web pages.", 47},
    PageCase{3, InsertMode::AutoInsert, 2, u"Step 7: Select Method for Inserting your Special Effect",
             u"Select the method of inserting this special effect into your Web page.", 48},
    PageCase{4, InsertMode::AutoInsert, 3, u"Step 7: Auto-Insert the special effect in your Web page",
             u"Orvane will automatically insert the HTML code into your Web page and will copy the required files to the folder where your Web page is located.", 49},
    PageCase{4, InsertMode::NewPage, 3, u"Step 7: Create a new Web page",
             u"Orvane will create a new Web page that contains your special effect and will copy the required files to the folder where your Web page is located.", 51},
    PageCase{5, InsertMode::AutoInsert, 4, u"Step 7: Insert HEAD HTML code into your Web page",
             u"Add the following HTML code to the HEAD section of your Web page.", 50},
    PageCase{6, InsertMode::AutoInsert, 5, u"Step 7: Insert BODY HTML code into your Web page",
             u"Add the following HTML code to the BODY section of your Web page.", 50},
    PageCase{7, InsertMode::AutoInsert, 6, u"Step 7: Insert BODY Attribute HTML code into your Web page",
             u"Add the following HTML code to the BODY tag of your Web page.", 50},
    PageCase{8, InsertMode::AutoInsert, 7, u"Step 7: Publish required files to local hard drive",
             u"This special effect requires extra files to work correctly.  These files must be placed in the same folder as the Web page that contains the special effect HTML code.", 52},
    PageCase{9, InsertMode::AutoInsert, 9, u"Finished!",
             u"You have completed your Orvane special effect!  Click the 'Done' button below to return to the Main Menu to create a new special effect.", 53}));
// clang-format on

} // namespace
} // namespace orvane
