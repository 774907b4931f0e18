#include "delivery/delivery_flow.h"

#include "core/numbers.h"

#include <stdexcept>

namespace orvane {

namespace {

/// The words of a page, its heading without the number.
struct PageWords
{
    int Panel;
    TextView HeadingEnd; ///< behind "Step «N»: "
    TextView SubHeading;
    int HelpContext;
};

PageWords WordsOf(std::int16_t page, InsertMode mode)
{
    switch (page) {
    case 1:
        return {0, u"Preview your special effect",
                u"View your special effect in the Preview window below.  Click the 'Preview in "
                u"Browser' button to view the special effect in your default Web browser.",
                22};
    case 2:
        return {
            1, u"Select your Web page Editor",
            u"Select the Web page (HTML) editor that you normally use to create your Web pages.",
            47};
    case 3:
        return {2, u"Select Method for Inserting your Special Effect",
                u"Select the method of inserting this special effect into your Web page.", 48};
    case 4:
        if (mode == InsertMode::NewPage)
            return {3, u"Create a new Web page",
                    u"Orvane will create a new Web page that contains your special effect and will "
                    u"copy the required files to the folder where your Web page is located.",
                    51};
        return {3, u"Auto-Insert the special effect in your Web page",
                u"Orvane will automatically insert the HTML code into your Web page and will copy "
                u"the required files to the folder where your Web page is located.",
                49};
    case 5:
        return {4, u"Insert HEAD HTML code into your Web page",
                u"Add the following HTML code to the HEAD section of your Web page.", 50};
    case 6:
        return {5, u"Insert BODY HTML code into your Web page",
                u"Add the following HTML code to the BODY section of your Web page.", 50};
    case 7:
        return {6, u"Insert BODY Attribute HTML code into your Web page",
                u"Add the following HTML code to the BODY tag of your Web page.", 50};
    case 8:
        return {7, u"Publish required files to local hard drive",
                u"This special effect requires extra files to work correctly.  These files must be "
                u"placed in the same folder as the Web page that contains the special effect HTML "
                u"code.",
                52};
    case 9:
        return {9, u"",
                u"You have completed your Orvane special effect!  Click the 'Done' button below to "
                u"return to the Main Menu to create a new special effect.",
                53};
    default:
        throw std::logic_error("DescribePage: no such page");
    }
}

} // namespace

DeliveryFacts FactsOf(const FinishedPayload& payload, bool isEditorKnown)
{
    const EffectPayload& effect = payload.Effect;
    return {.HasHead = !effect.HEADHTML.empty() || payload.WantsPageScript,
            .HasBody = !effect.BODYHTML.empty(),
            .HasEvents = !effect.OnLoadFunc.empty() || !effect.OnUnloadFunc.empty(),
            .HasAttribute = !payload.BODYAttribute.empty(),
            .NeedsFiles = payload.NeedsFiles || payload.WantsPageScript,
            .IsEditorKnown = isEditorKnown};
}

DeliveryStep NextStep(DeliveryStep step, InsertMode mode, const DeliveryFacts& facts)
{
    ++step.StepNumber;
    const bool isManual = mode == InsertMode::ManualCopy;
    std::int16_t& page = step.PageStep;
    // Only the help for pasting by hand depends on the editor.
    if (page == 3 && isManual && !facts.IsEditorKnown) {
        page = 2;
        return step;
    }
    page = page == 1 ? 3 : page == 2 ? 4 : page + 1;
    if (page == 5 && !isManual)
        page = 9;
    if (isManual) {
        if (page == 4)
            page = 5;
        if (page == 5 && !facts.HasHead)
            page = 6;
        if (page == 6 && !facts.HasBody)
            page = 7;
        if (page == 7 && !facts.HasEvents)
            page = 8;
        if (page == 8 && !facts.NeedsFiles)
            page = 9;
    }
    return step;
}

DeliveryStep PreviousStep(DeliveryStep step, InsertMode mode, const DeliveryFacts& facts)
{
    --step.StepNumber;
    const bool isManual = mode == InsertMode::ManualCopy;
    std::int16_t& page = step.PageStep;
    page = page == 3 ? 1 : page == 2 ? 3 : page - 1;
    if (isManual) {
        if (page == 8 && !facts.NeedsFiles)
            page = 7;
        if (page == 7 && !facts.HasAttribute)
            page = 6;
        if (page == 6 && !facts.HasBody)
            page = 5;
        if (page == 5 && !facts.HasHead)
            page = 3;
        if (page == 4)
            page = 3;
    }
    if (!isManual && page == 8)
        page = 4;
    return step;
}

DeliveryPage DescribePage(DeliveryStep step, InsertMode mode)
{
    const PageWords words = WordsOf(step.PageStep, mode);
    // The first page is "Step 1" and the last one has no number, however the author got there.
    const Text number = step.PageStep == 1 ? u"1" : NumberToText(step.StepNumber);
    Text heading =
        step.PageStep == 9 ? Text(u"Finished!") : Join({u"Step ", number, u": ", words.HeadingEnd});
    return {words.Panel, std::move(heading), Text(words.SubHeading), words.HelpContext};
}

} // namespace orvane
