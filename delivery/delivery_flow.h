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

/// The words of the link by which the author chooses the effect's place in the page.
inline constexpr TextView putByPointing = u"Put it in by pointing";

/// What decides, besides the insertion mode, which pages of the delivery wizard are shown.
struct DeliveryFacts
{
    bool HasHead = false;
    bool HasBody = false;
    bool HasEvents = false;    ///< onLoad or onUnload of the BODY tag calls a function
    bool HasAttribute = false; ///< there is a text to put into the BODY tag
    bool NeedsFiles = false;
    bool IsEditorKnown = false; ///< the page editor was chosen in this run or an earlier one
};

/// These facts for a payload. A wanted page script counts as HEAD code and as a file that is
/// needed.
DeliveryFacts FactsOf(const FinishedPayload& payload, bool isEditorKnown);

/// A place in the delivery wizard.
struct DeliveryStep
{
    std::int16_t PageStep = 1;   ///< the page, 1 to 9; 0 leads back to the effect's wizard
    std::int16_t StepNumber = 1; ///< in the heading; "Next" adds 1, "Previous" takes 1 off
    bool operator==(const DeliveryStep&) const = default;
};

/// The place that "Next" leads to, past the pages that this effect does not need. The page that
/// asks for the editor comes behind the method, and only for copying by hand.
DeliveryStep NextStep(DeliveryStep step, InsertMode mode, const DeliveryFacts& facts);

/// The place that "Previous" leads to; PageStep is 0 before the first page.
DeliveryStep PreviousStep(DeliveryStep step, InsertMode mode, const DeliveryFacts& facts);

/// The panel, words and help topic of a page.
struct DeliveryPage
{
    int Panel = 0; ///< index of the panel that the page shows
    Text Heading;
    Text SubHeading;
    int HelpContext = 0; ///< number of the help topic
    bool operator==(const DeliveryPage&) const = default;
};

/// The page at that place. Expects a PageStep of 1 to 9; throws std::logic_error for any other.
DeliveryPage DescribePage(DeliveryStep step, InsertMode mode);

/// The words beside the option button of an insertion mode.
struct InsertModeWords
{
    TextView Caption;
    TextView Explanation;
};

/// These words by the value of InsertMode.
inline constexpr std::array<InsertModeWords, 3> insertModes = {{
    {u"Auto-insert",
     u"Orvane will automatically insert the special effect code into your Web page and copy the "
     u"necessary files."},
    {u"Manual copy",
     u"Orvane will help you manually insert the HTML code into your Web page and copy the required "
     u"files to a folder of your choice."},
    {u"Create new Web page", u"Orvane will create a new Web page with your special effect."},
}};

} // namespace orvane
