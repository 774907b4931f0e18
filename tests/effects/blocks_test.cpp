#include "core/block_scripts.h"
#include "core/draft.h"
#include "core/effect.h"
#include "core/numbers.h"
#include "core/percents.h"
#include "effects/page/animated_button.h"
#include "effects/page/animation_wizard.h"
#include "effects/page/background_fade.h"
#include "effects/page/banner_wizard.h"
#include "effects/page/color_scrollbars.h"
#include "effects/page/day_calendar.h"
#include "effects/page/earthquake.h"
#include "effects/page/falling_images.h"
#include "effects/page/image_rollover.h"
#include "effects/page/image_scroller.h"
#include "effects/page/page_transitions.h"
#include "effects/page/personalize.h"
#include "effects/page/random_image.h"
#include "effects/page/scrolling_credits.h"
#include "effects/page/sliding_message.h"
#include "effects/page/sound_effect.h"
#include "effects/page/thought_bubbles.h"
#include "effects/text/fading_message.h"
#include "effects/text/flashing_text.h"
#include "effects/text/flying_text.h"
#include "effects/text/navigator_ticker.h"
#include "effects/text/random_quote.h"
#include "effects/text/shaking_text.h"
#include "effects/text/smooth_scroll.h"
#include "effects/text/swirly_text.h"
#include "effects/text/text_button.h"
#include "effects/text/text_effects.h"
#include "effects/text/text_transitions.h"
#include "reedit/applet_tag.h"
#include "reedit/block_reader.h"
#include "tests/support/expect_text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace orvane::testing {
namespace {

/// Values that a page could take for its own code; what a wizard mends is not among them.
class Chance
{
public:
    explicit Chance(unsigned seed) : m_source(seed) {}

    int Number(int least, int most) { return std::uniform_int_distribution(least, most)(m_source); }

    Text Hostile(TextView between = u" ")
    {
        constexpr TextView pieces[] = {
            u"</script>",
            u"-->",
            u"<!--",
            u"\"",
            u"'",
            u"&",
            u"&amp;",
            u"&nbsp;",
            u"&#10;",
            u"<",
            u"<br>",
            u"</span></div>",
            u"</li><li>",
            u"</style>",
            u"<%= 1 %>",
            u"=\"",
            u"\\",
            u"x",
            u"<!-- ***** End:Varlo Smooth Scroller special effect ***** -->",
            u"é",
            u"€",
            u"😀",
            u"\u00A0",
            u"data-orvane=\"scroller-1\"",
            u"`",
            u"%20",
            u"no",
            u"yes",
            u"-",
            u"5",
            u"®"};
        Text text;
        for (int count = Number(1, 5); count > 0; --count) {
            if (!text.empty())
                text += Number(0, 1) == 0 ? TextView() : between;
            text += pieces[Number(0, std::size(pieces) - 1)];
        }
        return text;
    }

    void Fill(const FieldName& name, Text& value)
    {
        constexpr TextView colors[] = {u"", u"red", u"#aB3", u"rgb(1, 2, 3)"};
        if (name.IsSource)
            value.clear(); // which no page tells
        else if (name.Bounds)
            value = NumberToText(Number(static_cast<int>(name.Bounds->Least * 10),
                                        static_cast<int>(name.Bounds->Most * 10)) /
                                 10.0);
        else if (!name.Choices.empty())
            value = name.Choices[static_cast<std::size_t>(
                Number(0, static_cast<int>(name.Choices.size()) - 1))];
        else if (name.IsColor)
            value = colors[Number(0, 3)];
        else
            value = Hostile(name.Name == "txtText" ? lineEnd : u" ");
    }
    void Fill(const FieldName& name, int& value)
    {
        const NumberBounds bounds = name.Bounds.value_or(NumberBounds{0, 32767});
        value = Number(static_cast<int>(bounds.Least), static_cast<int>(bounds.Most));
    }
    void Fill(const FieldName& name, std::vector<Text>& colors)
    {
        constexpr TextView pieces[] = {u"red", u"#aB3", u"rgb(1,2,3)"};
        colors.clear();
        for (int count =
                 Number(static_cast<int>(name.Bounds->Least), static_cast<int>(name.Bounds->Most));
             count > 0; --count)
            colors.emplace_back(pieces[Number(0, 2)]);
    }
    void Fill(const FieldName&, TransitionsOf& value) { value = TransitionsOf(Number(0, 1)); }
    void Fill(const FieldName&, BlockParagraphs& value)
    {
        value.Words = Hostile(Number(0, 1) == 0 ? lineEnd : u"\r\n\r\n");
    }
    void Fill(const FieldName&, bool& value) { value = Number(0, 1) == 1; }
    void Fill(const FieldName&, BlockRows& rows)
    {
        for (int count = Number(1, 4); count > 0; --count)
            rows.push_back({Hostile(lineEnd), Number(0, 1) == 0 ? Text() : Hostile()});
    }
    void Fill(const FieldName&, ColoredRows& rows)
    {
        for (int count = Number(1, 4); count > 0; --count)
            rows.push_back({Hostile(), Number(0, 1) == 0 ? Text() : Hostile(),
                            Number(0, 1) == 0 ? u"" : u"rgb(1, 2, 3)"});
    }
    void Fill(const FieldName&, QuoteRows& rows)
    {
        for (int count = Number(1, 4); count > 0; --count)
            rows.push_back({Hostile(lineEnd), Number(0, 1) == 0 ? Text() : Hostile(),
                            Number(0, 1) == 0 ? Text() : Hostile()});
    }
    void Fill(const FieldName&, BlockPictures& pictures)
    {
        for (int count = Number(1, 4); count > 0; --count)
            pictures.push_back(
                {Hostile(), u"", Hostile(), Hostile(), Number(0, 32767), Number(0, 9)});
    }
    void Fill(const FieldName&, RolloverRows& rows)
    {
        for (int count = Number(1, 4); count > 0; --count) {
            RolloverRow row{Hostile(), {Hostile(), u"", Hostile(), Hostile(), Number(0, 9), 8}};
            if (Number(0, 1) == 0)
                row.Trigger = {Hostile(), u"", u"", u"", Number(0, 9), 8};
            rows.push_back(row);
        }
    }
    void Fill(const FieldName&, BlockAttributes& others)
    {
        others = {{u"class", Hostile(u"\n")}, {u"onclick", Hostile(u"\t")}, {u"data-x", u""}};
    }

private:
    std::mt19937 m_source;
};

template <class Effect>
class BlockTest : public ::testing::Test
{
};
using BlockEffects =
    ::testing::Types<SmoothScroll, FadingMessage, FlyingText, FallingImages, AnimationWizard,
                     ColorScrollbars, SwirlyText, NavigatorTicker, TextTransitions, TextEffects,
                     FlashingText, ShakingText, TextButton, RandomQuote, ThoughtBubbles,
                     ScrollingCredits, Personalize, BannerWizard, ImageScroller, RandomImage,
                     ImageRollover, AnimatedButton, BackgroundFade, Earthquake, SoundEffect,
                     DayCalendar, SlidingMessage, PageTransitions>;
TYPED_TEST_SUITE(BlockTest, BlockEffects);

/// Effects whose fields depend on each other, so that some of them do not count, or on more than
/// their bounds.
template <class Effect>
concept HasIdleFields = std::same_as<Effect, AnimationWizard> ||
    std::same_as<Effect, TextTransitions> || std::same_as<Effect, ScrollingCredits> ||
    std::same_as<Effect, AnimatedButton> || std::same_as<Effect, Earthquake>;

Text ScriptElementOf(TextView kind)
{
    return Join({u"<script data-orvane-run=\"", kind, u"\">",
                 BlockScript(kind.substr(0, kind.size() - 2)), u"</script>"});
}

TYPED_TEST(BlockTest, WhateverTheValuesAreTheyAreReadAsTheyWereWritten)
{
    const char* given = std::getenv("ORVANE_SEED");
    const unsigned seed = given ? static_cast<unsigned>(std::atoi(given)) : std::random_device()();
    SCOPED_TRACE(::testing::Message() << "ORVANE_SEED=" << seed);
    Chance chance(seed);
    for (int round = 0; round < 300 && !this->HasFailure(); ++round) {
        TypeParam effect;
        ForEachField(effect, [&](const FieldName& name, auto& value) { chance.Fill(name, value); });
        if constexpr (HasIdleFields<TypeParam>)
            Tidy(effect);
        TypeParam tidied = effect;
        Tidy(tidied);
        ASSERT_EQ(tidied, effect) << ToUtf8(WriteDraft(effect)) << ToUtf8(WriteDraft(tidied));

        const EffectPayload payload = Generate(effect);
        const Text text = payload.HEADHTML + payload.BODYHTML;
        TypeParam read;
        ASSERT_TRUE(ReadBlock(read, Join({u"<p title='>'><!-- <b> -->", text, u"<li>more"})));
        ASSERT_EQ(read, effect) << ToUtf8(WriteDraft(effect)) << ToUtf8(WriteDraft(read))
                                << ToUtf8(text);
        const Text values = ReplaceAll(text, ScriptElementOf(BlockKindOf(effect)), u"");
        for (const TextView end : {u"-->", u"<!", u"<%", u"</script", u"<script"})
            ASSERT_EQ(Find(values, end), 0u) << ToUtf8(values);
    }
}

/// Expects that the text shows the effect that these lines of a draft make of a fresh one.
template <class Effect>
void ExpectRead(TextView text, TextView draft)
{
    Effect expected;
    ReadDraft(expected, draft, Secrets::Taken);
    Effect read;
    ForEachField(read, [](const FieldName&, auto& value) { value = {}; });
    EXPECT_TRUE(ReadBlock(read, text));
    EXPECT_EQ(read, expected) << ToUtf8(WriteDraft(read));
}

TEST(BlockReaderTest, ReadsWhatWasEditedByHand)
{
    ExpectRead<SmoothScroll>(
        u"<DIV DATA-SPEED=80 class='news box' Data-Orvane='scroller-1'\n"
        u"data-back-color=\"#002244\" DATA-speed=90><UL>\n<LI>Caf&eacute; "
        u"&amp; b&#228;r&#146;s\r\n<li><A HREF=a.html?b=1&amp;c=2>\nPlums &ndash;"
        u"\n  now</A><li><br></UL></DIV><li>Later",
        u"lstMessages: Café & bär’s\nlstMessages: \nlstMessages: Plums – now\n"
        u"lstMessages: a.html?b=1&c=2\nsldrSpeed: 80\ncmdBackColor: #002244\n"
        u"Others: class\nOthers: news box");
    ExpectRead<SmoothScroll>(
        u"<p><div data-orvane=scroller-27 data-speed=9999 data-gap=wide data-width=12.5px "
        u"data-faded-edges data-pause-on-hover=no data-direction=up data-text-color=- "
        u"data-font-size=-3 data-back-color='red;}'><div><ul><li><p>One</p><p>Two</p></div></div>"
        u"<ul><li>Three</ul>",
        u"lstMessages: One Two\nlstMessages: \nsldrSpeed: 500\ntxtWidth: 12.5\n"
        u"chkFadedEdges: yes\nchkPauseOnHover: no");
    ExpectRead<FlyingText>(
        u"<p>New: <span data-orvane='flying-1' data-again-after=1e1> Plums <BR/>\n"
        u"<b>from</b>   <a href=a.html>Monday</a><script>\"</span>\"</script>"
        u"<!-- </span> --> ! </span> tail",
        u"txtText: Plums\\r\\nfrom Monday !\ntxtAgainAfter: 10");
    ExpectRead<AnimationWizard>(
        u"<div data-orvane=animation-1 data-change=23><a href=www.x.example><img alt=\"A cat\" "
        u"WIDTH=100 src='a%20b.gif'></a><img src=b.gif height=80%><img alt=none>",
        u"lstPictures: a%20b.gif\nlstPictures: \nlstPictures: \nlstPictures: \nlstPictures: 100\n"
        u"lstPictures: 0\nlstPictures: b.gif\nlstPictures: \nlstPictures: \nlstPictures: \n"
        u"lstPictures: 0\nlstPictures: 0\ntxtDescription: A cat\ntxtLink: http://www.x.example\n"
        u"cboChange: 23");
    ExpectRead<ColorScrollbars>(u"<style DATA-ORVANE=scrollbars-1 data-track-color=-></style>",
                                u"cmdTrackColor: ");
    ExpectRead<NavigatorTicker>(
        u"<div data-orvane=navigator-1><ul><li DATA-COLOR=red}>One<br>two"
        u"<li data-color=#123><a name=x></a><a href=a.html>Three</a></ul></div>",
        u"lstMessages: One two\nlstMessages: \nlstMessages: \nlstMessages: Three\n"
        u"lstMessages: a.html\nlstMessages: #123");
    ExpectRead<RandomQuote>(
        u"<div data-orvane=quote-1 data-seconds=1><ul><li><blockquote><p>One</p> <p>two</p>"
        u"</blockquote>\n<cite>Ann\n B.</cite>!<li hidden><cite>Bob<li>Three</div>",
        u"lstQuotes: One two !\nlstQuotes: Ann B.\nlstQuotes: \nlstQuotes: Three\nlstQuotes: \n"
        u"lstQuotes: \ntxtSeconds: 2");
    ExpectRead<ScrollingCredits>(
        u"<div data-orvane=credits-1>By <P>Ann<br>and\nBob</P><p></p>\n<p>The end</div>",
        u"txtText: By\\r\\n\\r\\nAnn\\r\\nand Bob\\r\\n\\r\\nThe end");
    ExpectRead<ThoughtBubbles>(
        u"<div data-orvane=bubble-1><figure><img src=a.gif><p>no</p><figcaption>no<p>One<p>Two"
        u"<p>Three</figcaption><p>no</figure></div>",
        u"txtPicture: a.gif\ntxtBubble: One\ntxtSecondBubble: Two");
    ExpectRead<SwirlyText>(u"<span data-orvane=swirl-1 data-colors='red - #123  x} blue'>A</span>",
                           u"txtText: A\nlstColors: red\nlstColors: #123\nlstColors: blue");
    ExpectRead<SwirlyText>(u"<span data-orvane=swirl-1 data-colors='red blue'>A</span>",
                           u"txtText: A");
    ExpectRead<TextTransitions>(u"<div data-orvane=images-1><img src=a.gif></div>",
                                u"TransitionsImageMode: 1\nlstPictures: a.gif\nlstPictures: \n"
                                u"lstPictures: \nlstPictures: \nlstPictures: 0\nlstPictures: 0");
    ExpectRead<ImageRollover>(
        u"<div data-orvane=rollover-1><ul><li><a href=www.x.example>One\n<br>two</a><p><img "
        u"src=a.gif alt=A><li><img src=b.gif alt=Three> <img src=c.gif width=9><li>Four</ul></div>",
        u"lstTriggers: One two\nlstTriggers: a.gif\nlstTriggers: A\n"
        u"lstTriggers: http://www.x.example\nlstTriggers: \nlstTriggers: \nlstTriggers: 0\n"
        u"lstTriggers: 0\nlstTriggers: \nlstTriggers: 0\nlstTriggers: 0\nlstTriggers: Three\n"
        u"lstTriggers: c.gif\nlstTriggers: \nlstTriggers: \nlstTriggers: b.gif\nlstTriggers: \n"
        u"lstTriggers: 9\nlstTriggers: 0\nlstTriggers: \nlstTriggers: 0\nlstTriggers: 0");
    ExpectRead<SlidingMessage>(
        u"<div data-orvane=window-1 data-width=9>Plums<p>are <a href=a.html>in</a><a href=b.html>!",
        u"txtMessage: Plums\\r\\n\\r\\nare in!\ntxtLink: a.html\ntxtWidth: 120");
    SmoothScroll other{.sldrSpeed = 7};
    EXPECT_FALSE(
        ReadBlock(other, u"<!-- <div data-orvane=scroller-1> --><p data-orvane=message-1>"));
    EXPECT_EQ(other, SmoothScroll{.sldrSpeed = 7});
}

TEST(BlockCheckTest, TellsWhatKeepsTheAuthorOnAPage)
{
    const BlockPictures two = {{u"a.gif"}, {u"b.gif"}};
    const BlockRows rows = {{u"Now"}};
    const std::pair<std::optional<Complaint>, Complaint> complaints[] = {
        {FirstComplaint(SmoothScroll{.lstMessages = {{u" \r\n"}}}),
         {u"Please add a message to the list.", "lstMessages"}},
        {FirstComplaint(SmoothScroll{.lstMessages = rows, .txtGap = u"1001"}),
         {u"Please enter a number from 0 to 1000.", "txtGap"}},
        {FirstComplaint(FadingMessage{.lstMessages = rows, .txtFadeSeconds = u"1 s"}),
         {u"Please enter a number from 0.2 to 10.", "txtFadeSeconds"}},
        {CheckPage(FadingMessage{.txtFadeSeconds = u"x", .Look = {.cboFontSize = u"big"}}, 2),
         {u"Please enter a number from 0 to 4000.", "cboFontSize"}},
        {FirstComplaint(FlyingText()), {u"Please enter the text that is to fly.", "txtText"}},
        {FirstComplaint(FallingImages{.lstPictures = {6, {u"a.gif"}}}),
         {u"Please add 5 pictures at most to the list.", "lstPictures"}},
        {FirstComplaint(FallingImages{.lstPictures = two, .txtSmallest = u"41", .txtLargest = u""}),
         {u"The smallest pictures are larger than the largest.  Please enter other widths.",
          "txtSmallest"}},
        {FirstComplaint(AnimationWizard()), {u"Please add a picture to the list.", "lstPictures"}},
        {FirstComplaint(AnimationWizard{.lstPictures = {{u"a.gif"}}}),
         {u"Please add a second picture to the list.", "lstPictures"}},
        {FirstComplaint(AnimationWizard{.lstPictures = {{u"a.gif", u"/x/a.gif"}, {u"a.gif"}}}),
         {u"Two different pictures of the list are called \"a.gif\".  Please give one of the files "
          u"another name.",
          "lstPictures"}},
        {FirstComplaint(SwirlyText()), {u"Please enter the text that is to swirl.", "txtText"}},
        {FirstComplaint(SwirlyText{.txtText = u"a", .lstColors = {u"red", u"blue"}}),
         {u"Please choose three colors at least.", "lstColors"}},
        {FirstComplaint(SwirlyText{.txtText = u"a", .txtSeconds = u"61"}),
         {u"Please enter a number from 4 to 60.", "txtSeconds"}},
        {FirstComplaint(NavigatorTicker{.lstMessages = {{u" ", u"a.html"}}}),
         {u"Please add a message to the list.", "lstMessages"}},
        {FirstComplaint(TextTransitions{.lstPictures = two}),
         {u"Please add a message to the list.", "lstMessages"}},
        {FirstComplaint(
             TextTransitions{.TransitionsImageMode = TransitionsOf::Images, .lstMessages = rows}),
         {u"Please add a picture to the list.", "lstPictures"}},
        {FirstComplaint(TextEffects()), {u"Please enter the text that is to grow.", "txtText"}},
        {FirstComplaint(TextEffects{.txtText = u"a", .txtFrom = u" 20.0", .txtTo = u"20"}),
         {u"The text would stay as large as it is.  Please enter two different sizes.", "txtTo"}},
        {FirstComplaint(FlashingText()), {u"Please enter the text that is to flash.", "txtText"}},
        {FirstComplaint(FlashingText{.txtText = u"a", .txtTimesPerSecond = u"0.1"}),
         {u"Please enter a number from 0.2 to 3.", "txtTimesPerSecond"}},
        {FirstComplaint(ShakingText()), {u"Please enter the text that is to shake.", "txtText"}},
        {FirstComplaint(TextButton()), {u"Please enter the text of the button.", "txtCaption"}},
        {FirstComplaint(TextButton{.txtCaption = u"a"}),
         {u"Please enter the Web page that the button leads to.", "txtLink"}},
        {FirstComplaint(RandomQuote{.lstQuotes = {{u"", u"Ann"}}}),
         {u"Please add a quote to the list.", "lstQuotes"}},
        {FirstComplaint(ThoughtBubbles()), {u"Please choose a picture.", "txtPicture"}},
        {FirstComplaint(ThoughtBubbles{.Picture = {u"a.gif"}}),
         {u"Please enter what is thought on the picture.", "txtBubble"}},
        {FirstComplaint(ScrollingCredits{.txtText = {u" \r\n"}}),
         {u"Please enter the text of the credits.", "txtText"}},
        {FirstComplaint(ScrollingCredits{.cboWhat = u"page", .cboAtEnd = u"page"}),
         {u"Please enter the Web page that comes at the end.", "txtNextPage"}},
        {FirstComplaint(Personalize{.txtForgetAfter = u"0"}),
         {u"Please enter a number from 1 to 3650.", "txtForgetAfter"}},
        {FirstComplaint(BannerWizard{.lstPictures = {{u"a.gif"}, {u" "}}}),
         {u"Please add a second picture to the list.", "lstPictures"}},
        {FirstComplaint(BannerWizard{.lstPictures = two, .txtDuration = u"6"}),
         {u"Please enter a number from 0.2 to 5.", "txtDuration"}},
        {FirstComplaint(RandomImage{.lstPictures = {{u"a.gif"}}}),
         {u"Please add a second picture to the list.", "lstPictures"}},
        {FirstComplaint(ImageScroller{.lstPictures = two, .txtHeight = u"19"}),
         {u"Please enter a number from 20 to 1000.", "txtHeight"}},
        {FirstComplaint(ImageRollover{.lstTriggers = {{u"a"}, {u"", {u"a.gif"}}}}),
         {u"Please add a picture to the list.", "lstTriggers"}},
        {FirstComplaint(ImageRollover{.lstTriggers = {{u"a", {u"a.gif"}, {u"a.gif", u"/a.gif"}}}}),
         {u"Two different pictures of the list are called \"a.gif\".  Please give one of the files "
          u"another name.",
          "lstTriggers"}},
        {FirstComplaint(AnimatedButton{.lstOverPictures = two}),
         {u"Please add a picture to the list.", "lstPictures"}},
        {FirstComplaint(
             AnimatedButton{.lstPictures = two, .lstOverPictures = {{u"a.gif", u"/a.gif"}}}),
         {u"Two different pictures of the list are called \"a.gif\".  Please give one of the files "
          u"another name.",
          "lstOverPictures"}},
        {FirstComplaint(AnimatedButton{.lstPictures = two, .lstPressedPictures = {49, {u"c.gif"}}}),
         {u"Please add 50 pictures at most to the list.", "lstPressedPictures"}},
        {FirstComplaint(AnimatedButton{.lstPictures = two}),
         {u"Please enter the Web page that the button leads to.", "txtLink"}},
        {FirstComplaint(BackgroundFade{.FirstColor = u""}),
         {u"Please choose a color for the beginning.", "cmdFirstColor"}},
        {FirstComplaint(BackgroundFade{.LastColor = u"-", .txtSeconds = u"11"}),
         {u"Please choose a color for the end.", "cmdLastColor"}},
        {FirstComplaint(Earthquake{.txtPixels = u"0"}),
         {u"Please enter a number from 1 to 12.", "txtPixels"}},
        {FirstComplaint(SoundEffect()),
         {u"Please choose a sound for the arrival, for leaving the page, or for both.",
          "txtSound"}},
        {FirstComplaint(SoundEffect{.Sound = {u"a%20b.mp3", u"/x/a b.mp3"},
                                    .txtLeavingSound = u"a%20b.mp3",
                                    .LeavingSoundSource = u"/y/a b.mp3"}),
         {u"Two different sounds are called \"a b.mp3\".  Please give one of the files another "
          u"name.",
          "txtLeavingSound"}},
        {FirstComplaint(DayCalendar{
             .chkMonth = false, .chkWeekday = false, .chkDay = false, .chkYear = false}),
         {u"Please choose at least one line for the calendar.", "chkMonth"}},
        {FirstComplaint(SlidingMessage()), {u"Please enter the message.", "txtMessage"}},
        {FirstComplaint(SlidingMessage{.txtMessage = {u"a"}, .PaperColor = u""}),
         {u"Please choose a color for the window.", "cmdPaperColor"}},
        {FirstComplaint(PageTransitions{.cboArrival = u"none"}),
         {u"Please choose how the page comes, how the one before it goes, or both.", "cboArrival"}},
        {FirstComplaint(PageTransitions{.CoverColor = u""}),
         {u"Please choose a color for the cover.", "cmdCoverColor"}},
        {FirstComplaint(ColorScrollbars{.TrackColor = u" - "}),
         {u"Please choose a color for the track.", "cmdTrackColor"}},
    };
    for (const auto& [complaint, expected] : complaints) {
        ASSERT_TRUE(complaint) << ToUtf8(expected.Words);
        ExpectSameText(expected.Words, complaint->Words);
        EXPECT_EQ(complaint->Control, expected.Control);
    }
}

TEST(BlockHintTest, TellsWhatThePageTakesInstead)
{
    const auto words = [](const std::vector<Hint>& hints) {
        Text all;
        for (const Hint& hint : hints)
            all += Join({FromUtf8(hint.Control), u": ", hint.Words});
        return all;
    };
    EXPECT_EQ(HintsOf(SwirlyText()), std::vector<Hint>());
    ExpectSameText(u"txtSeconds: The page takes 4: with less it would not be calm enough to read.",
                   words(HintsOf(SwirlyText{.txtSeconds = u"3.9"})));
    ExpectSameText(u"txtTimesPerSecond: The page takes 3: more can harm those who look at it.",
                   words(HintsOf(FlashingText{.txtTimesPerSecond = u"3.1"})));
    ExpectSameText(
        u"txtGreeting: The greeting does not say the name, which comes where «name» stands.",
        words(HintsOf(Personalize{.txtGreeting = u"Hello!"})));
}

TEST(BlockTidyTest, MendsWhatNoPageCanHold)
{
    FlyingText flying{.txtText = u"\n a \t b\u0001 \r\n\r\n c\xD800 \r\n",
                      .txtLetterPause = u" +07"};
    Tidy(flying);
    EXPECT_EQ(flying, (FlyingText{.txtText = u"a b\r\n\r\nc\uFFFD", .txtLetterPause = u"7"}));
    SmoothScroll scroll{.lstMessages = {{u" "}, {u"a", u" WWW.x.example\n"}},
                        .cboDirection = u"up",
                        .sldrSpeed = 1,
                        .BackColor = u"red}",
                        .cboTarget = u"a\u0085\r\nb"};
    Tidy(scroll);
    EXPECT_EQ(scroll, (SmoothScroll{.lstMessages = {{u"a", u"http://WWW.x.example"}},
                                    .sldrSpeed = 5,
                                    .cboTarget = u"a  b"}));
    scroll.Others = {{u"x onclick", u"1"}, {u"", u"2"}, {u"title", u"3"}};
    EXPECT_EQ(
        OpenTagOf(BlockOf(scroll), u"div"),
        u"<div data-orvane=\"scroller-1\" data-speed=\"5\" data-target=\"a  b\" title=\"3\">");
}

TEST(BlockTagTest, TagsOfEarlierAppletsFillTheFields)
{
    SmoothScroll scroll;
    ReadTag(scroll, {.Whole = u"<APPLET CODE=\"LTRScroll.class\" WIDTH=300 HEIGHT=\"20\"><PARAM "
                              u"NAME=MESSAGE VALUE=\" Seeds \"><PARAM NAME=SPEED VALUE=\"900\">"
                              u"<PARAM NAME=BGCOLOR VALUE=\"255,128,0\"><PARAM NAME=TEXTCOLOR "
                              u"VALUE=\"navy\"><PARAM NAME=SIZE VALUE=\"18\">",
                     .AppletTextAfterCODE = u"\"LTRS"});
    EXPECT_EQ(scroll, (SmoothScroll{.lstMessages = {{u"Seeds"}},
                                    .cboDirection = u"right",
                                    .sldrSpeed = 500,
                                    .txtWidth = u"300",
                                    .txtHeight = u"20",
                                    .Look = {.cboFontSize = u"18", .TextColor = u"navy"},
                                    .BackColor = u"#FF8000"}));
    FadingMessage message;
    ReadTag(message, {.Whole = u"<APPLET ALIGN=Left><PARAM NAME=TEXT.0 VALUE=\"One\"><PARAM "
                               u"NAME=URL.0 VALUE=\"www.x\"><PARAM NAME=TEXT.2 VALUE=\"Two\">"});
    EXPECT_EQ(message, (FadingMessage{.lstMessages = {{u"One", u"http://www.x"}, {u"Two"}},
                                      .cboAlign = u"left"}));
    SwirlyText swirly;
    ReadTag(swirly, {.Whole = u"<PARAM NAME=TEXT VALUE=\"Hello\"><PARAM NAME=FONT VALUE=Courier>"
                              u"<PARAM NAME=SIZE VALUE=\"24\">"});
    EXPECT_EQ(swirly, (SwirlyText{.txtText = u"Hello",
                                  .Look = {.cboFont = u"Courier", .cboFontSize = u"24"}}));
    NavigatorTicker ticker;
    ReadTag(ticker, {.Whole = u"<APPLET WIDTH=300><PARAM NAME=SPEED VALUE=\"2\"><PARAM NAME=BGCO "
                              u"VALUE=\"0,0,255\"><PARAM NAME=TXTCO VALUE=white><PARAM NAME=LINKCO "
                              u"VALUE=\"255,255,0\"><PARAM NAME=TEXT.0 VALUE=\"Home\"><PARAM "
                              u"NAME=URL.0 VALUE=\"a.html\"><PARAM NAME=TEXT.1 VALUE=\"News\">"});
    EXPECT_EQ(ticker, (NavigatorTicker{.lstMessages = {{u"Home", u"a.html", u"#FFFF00"}, {u"News"}},
                                       .sldrSpeed = 5,
                                       .txtWidth = u"300",
                                       .Look = {.TextColor = u"white"},
                                       .BackColor = u"#0000FF"}));
    AnimationWizard animation;
    ReadTag(animation, TagOf(ExpectedText("advanced_animator_full.html")));
    EXPECT_EQ(animation, (AnimationWizard{.lstPictures = {{u"a.gif"}, {u"b.gif"}, {u"c.gif"}},
                                          .cboTimes = u"10",
                                          .txtWidth = u"320",
                                          .txtLink = u"http://www.example.com/x.html"}));
    ReadTag(animation, TagOf(u"<APPLET CODE=\"AnimatePLUS28.class\" WIDTH=9999>"
                             u"<PARAM NAME=IMAGE.0 VALUE=\"a b.gif\"><PARAM NAME=PAUSE.0 "
                             u"VALUE=\"100\"><PARAM NAME=URL.0 VALUE=\"null\">"));
    EXPECT_EQ(animation, (AnimationWizard{.lstPictures = {{u"a%20b.gif"}},
                                          .txtMilliseconds = u"170",
                                          .txtWidth = u"4000"}));
    BannerWizard banner;
    ReadTag(banner, TagOf(u"<APPLET CODE=\"Animate1.class\" WIDTH=468 HEIGHT=\"60\"><PARAM "
                          u"NAME=IMAGE.0 VALUE=\"a.gif\"><PARAM NAME=IMAGE.1 VALUE=\"b.gif\">"
                          u"<PARAM NAME=URL.0 VALUE=\"null\"><PARAM NAME=URL.1 VALUE=\"www.x\">"
                          u"<PARAM NAME=TARGET.0 VALUE=\"_top\"><PARAM NAME=PAUSE.0 "
                          u"VALUE=\"3500\">"));
    EXPECT_EQ(banner,
              (BannerWizard{.lstPictures = {{u"a.gif"}, {u"b.gif", u"", u"", u"http://www.x"}},
                            .txtSeconds = u"3.5",
                            .Size = {.txtWidth = u"468", .txtHeight = u"60"},
                            .cboTarget = u"_top"}));
}

TEST(BlockFilesTest, AreThoseBesideThePage)
{
    RequiredFiles expected;
    expected.RequiredFileNames = {u"a b#.gif", u"sub/c.gif"};
    expected.RequiredFileSources = {u"/home/a b#.gif"};
    EXPECT_EQ(FilesOf(BlockPictures{{WithPercents(u"a b#.gif"), u"/home/a b#.gif"},
                                    {u"http://x.example/d.gif"},
                                    {u"/root.gif"},
                                    {u"make.php?n=1"},
                                    {u"a%20b%23.gif"},
                                    {u"sub/c.gif#part"}},
                      {{u"a%20b%23.gif", u"/other/a b#.gif"}, {u"", u"/x/no.mp3"}}),
              expected);
    expected = {};
    expected.RequiredFileNames = {u"b.mp3", u"a.mp3"};
    expected.RequiredFileSources = {u"", u"/x/a.mp3"};
    // What was typed over a picked name is another file.
    EXPECT_EQ(FilesOf(BlockSound{u"b.mp3", u"/x/a.mp3"}, {{u"a.mp3", u"/x/a.mp3"}}), expected);
}

} // namespace
} // namespace orvane::testing
