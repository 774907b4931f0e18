#pragma once

#include "core/payload.h"

#include <array>
#include <cstdint>

namespace orvane {

/// How the effect gets into a page; the values are the indices of `optInsertMode`.
enum class InsertMode
{
    AutoInsert = 0,
    ManualCopy = 1,
    NewPage = 2,
};

/// What the way through the delivery wizard depends on, besides the insertion mode.
struct DeliveryFacts
{
    bool HasHead = false;
    bool HasBody = false;
    bool HasEvents = false;    ///< a call from onLoad or onUnload
    bool HasAttribute = false; ///< a text for the BODY tag
    bool NeedsFiles = false;
    bool IsEditorKnown = false; ///< the page editor was chosen in this run or an earlier one
};

/// The page script comes as a part of the HEAD code, and as a file.
DeliveryFacts FactsOf(const FinishedPayload& payload, bool isEditorKnown);

/// A place in the delivery wizard.
struct DeliveryStep
{
    std::int16_t PageStep = 1;   ///< 1 to 9; 0 is the way back to the effect's wizard
    std::int16_t StepNumber = 1; ///< counts the pages that the author has seen
    bool operator==(const DeliveryStep&) const = default;
};

/// The place behind "Next" and before "Previous".
DeliveryStep NextStep(DeliveryStep step, InsertMode mode, const DeliveryFacts& facts);
DeliveryStep PreviousStep(DeliveryStep step, InsertMode mode, const DeliveryFacts& facts);

/// What stays the same about a page: its panel, words and help topic.
struct DeliveryPage
{
    int Panel = 0;
    Text Heading;
    Text SubHeading;
    int HelpContext = 0;
    bool operator==(const DeliveryPage&) const = default;
};

/// The page with that number; expects 1 to 9.
DeliveryPage DescribePage(DeliveryStep step, InsertMode mode);

/// What the option of an insertion mode says.
struct InsertModeWords
{
    TextView Caption;
    TextView Explanation;
};

inline constexpr std::array<InsertModeWords, 3> insertModes = {{
    {u"Auto-insert",
     u"Orvane will automatically insert the special effect code into your Web page and copy the "
     u"necessary files."},
    {u"Manual copy",
     u"Orvane will help you manually insert the HTML code into your Web page and copy the required "
     u"files to a folder of your choice."},
    {u"Create new Web page", u"Orvane will create a new Web page with your special effect."},
}};

/// The page editors of `lstHTMLEditors`, in its order.
inline constexpr std::array<TextView, 10> htmlEditors = {u"AOLPress",
                                                         u"FrontPage",
                                                         u"FrontPage Express",
                                                         u"DreamWeaver",
                                                         u"Microsoft Publisher 98",
                                                         u"NetObjects Fusion",
                                                         u"Netscape Composer",
                                                         u"Page Loom",
                                                         u"Yahoo/Geocities PageBuilder",
                                                         u"Other"};

} // namespace orvane
