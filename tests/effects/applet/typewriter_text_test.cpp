#include "effects/applet/typewriter_text.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TypewriterText Full()
{
    return {.TypedText = u"Welcome to\r\nmy home page!\r\nEnjoy.",
            .FontName = u"Courier",
            .FontSize = u"24",
            .Bold = true,
            .Italic = true,
            .TextColor = Text(BasicColors[1]),
            .AppletWidth = u"300",
            .AppletHeight = u"80",
            .Speed = 400,
            .Cycles = u"10 times",
            .BackColor = Text(BasicColors[7]),
            .BackImage = u"paper.gif",
            .LinkURL = u"WWW.example.com/x.html"};
}

TEST(TypewriterTextTest, NeedsATextFileThatItDoesNotRead)
{
    TypewriterText typewriter = Full();
    typewriter.TextFile = u"my words.txt"; // stays required although it is not read
    typewriter.Required.RequiredFileSources = {u"/p/paper.gif", u"/p/other.txt"};
    EXPECT_EQ(Generate(typewriter).Required,
              (RequiredFiles{.RequiredFileNames = {u"paper.gif", u"my words.txt"},
                             .RequiredFileSources = {u"/p/paper.gif"}}));
}

TEST(TypewriterTextTest, ChecksTheTextFirstAndAllAtTheEnd)
{
    TypewriterText typewriter;
    const auto refused = [&](int page, TextView words, const char* control) {
        const Tone tone = page == 2 ? Tone::Exclamation : Tone::Plain;
        EXPECT_EQ(CheckPage(typewriter, page), (Complaint{Text(words), control, tone}));
    };
    refused(0, u"Please enter Typewriter text for this special effect.", "TypedText");
    EXPECT_EQ(CheckPage(typewriter, 1), std::nullopt);
    refused(2, u"Please enter the required width and height properties.", "AppletWidth");
    typewriter.AppletWidth = typewriter.AppletHeight = u"x";
    refused(2, u"You must type something in the text box or enter the filename of a text file.",
            "TypedText");
    typewriter.TextFile = u"a.txt";
    refused(2, u"You must type something in the text box.", "TypedText");
    typewriter = {
        .ReadFromFile = true, .TypedText = u"x", .AppletWidth = u"1", .AppletHeight = u"1"};
    refused(0, u"Please enter a Typewriter text file for this special effect.", "TextFile");
    refused(2, u"You must enter the filename of a text file.", "TextFile");
    typewriter.TextFile = u" ";
    EXPECT_EQ(CheckPage(typewriter, 0), std::nullopt);
    EXPECT_EQ(CheckPage(typewriter, 2), std::nullopt);
}

TEST(TypewriterTextTest, ReadsATagOfTheEarlierAppletAndNeitherTextNorColorOfItsOwn)
{
    TypewriterText read;
    ReadTag(read, {.Whole = Generate(Full()).BODYHTML});
    EXPECT_EQ(read, (TypewriterText{.FontName = u"\"Courier",
                                    .FontSize = u"\"24",
                                    .AppletWidth = u"\"300",
                                    .AppletHeight = u"\"80",
                                    .Speed = 1,
                                    .Cycles = u"\"10",
                                    .BackColor = u"\"255,255,255",
                                    .BackImage = u"\"paper.gif",
                                    .LinkURL = u"\"WWW.example.com/x.html"}));
    ReadTag(read, {.Whole = u"TEXT VALUE=\"a \\b\" SPEED VALUE=501 FONTSTYLE VALUE=bold, italic "
                            u"TEXTCOLOR VALUE=\"1,2,3\""});
    EXPECT_EQ(read.TypedText, u"\"a \\b");
    EXPECT_EQ(read.TextColor, u"\"1,2,3");
    EXPECT_EQ(read.Speed, 500);
    EXPECT_TRUE(read.Bold);
    EXPECT_FALSE(read.Italic);
}

} // namespace
} // namespace orvane::testing
