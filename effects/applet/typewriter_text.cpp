#include "effects/applet/typewriter_text.h"

#include "core/numbers.h"
#include "effects/applet/applet_tag_builder.h"
#include "reedit/applet_values.h"
#include "services/recorded_files.h"
#include "services/web_address.h"

namespace orvane {

namespace {

/// How the applet is told of the end of a line of its text.
constexpr TextView lineBreak = u" \\";

std::optional<Complaint> CheckText(const TypewriterText& typewriter)
{
    if (!typewriter.ReadFromFile && typewriter.TypedText.empty())
        return Complaint{u"Please enter Typewriter text for this special effect.", "TypedText"};
    if (typewriter.ReadFromFile && typewriter.TextFile.empty())
        return Complaint{u"Please enter a Typewriter text file for this special effect.",
                         "TextFile"};
    return std::nullopt;
}

std::optional<Complaint> CheckAll(const TypewriterText& typewriter)
{
    const auto refuse = [](TextView words, const char* control) {
        return Complaint{Text(words), control, Tone::Exclamation};
    };
    if (typewriter.AppletHeight.empty() || typewriter.AppletWidth.empty())
        return refuse(u"Please enter the required width and height properties.", "AppletWidth");
    if (typewriter.TypedText.empty() && typewriter.TextFile.empty())
        return refuse(
            u"You must type something in the text box or enter the filename of a text file.",
            typewriter.ReadFromFile ? "TextFile" : "TypedText");
    if (!typewriter.ReadFromFile && typewriter.TypedText.empty())
        return refuse(u"You must type something in the text box.", "TypedText");
    if (typewriter.ReadFromFile && typewriter.TextFile.empty())
        return refuse(u"You must enter the filename of a text file.", "TextFile");
    return std::nullopt;
}

TextView StyleOf(const TypewriterText& typewriter)
{
    if (typewriter.Bold && typewriter.Italic)
        return u"bold, italic";
    if (typewriter.Bold)
        return u"bold";
    return typewriter.Italic ? u"italic" : u"";
}

/// A line of its own for each field that is not empty, even if nothing is left of its value.
void AddUnlessEmpty(AppletTagBuilder& tag, TextView name, TextView field, TextView value)
{
    if (!field.empty())
        tag.Param(name, value);
}

/// The channels at the end of a colour's entry.
TextView ChannelsOf(TextView color)
{
    return Trim(Right(color, 11));
}

TextView SizeOf(TextView size)
{
    return size.empty() ? u"100" : size;
}

} // namespace

Look LookOf(const TypewriterText& typewriter)
{
    return {{.Control = "TypedText", .IsShown = !typewriter.ReadFromFile},
            {.Control = "TextFile", .IsShown = typewriter.ReadFromFile}};
}

std::optional<Complaint> CheckPage(const TypewriterText& typewriter, int page)
{
    if (page == 0)
        return CheckText(typewriter);
    return page == 2 ? CheckAll(typewriter) : std::nullopt;
}

std::optional<Complaint> CheckPositive(TextView value)
{
    if (value.empty() || Val(value) >= 1)
        return std::nullopt;
    return Complaint{u"This must be a positive value.", ""};
}

void Tidy(TypewriterText& typewriter)
{
    typewriter.LinkURL = WithScheme(typewriter.LinkURL);
}

std::vector<Hint> HintsOf(const TypewriterText& typewriter)
{
    return HintList()
        .Number("FontSize", typewriter.FontSize)
        .Number("AppletWidth", typewriter.AppletWidth)
        .Number("AppletHeight", typewriter.AppletHeight)
        .Number("Cycles", CountOf(typewriter.Cycles))
        .Hints();
}

EffectPayload Generate(const TypewriterText& typewriter)
{
    AppletTagBuilder tag(u"Typewriter9.class", {{u"HEIGHT", SizeOf(typewriter.AppletHeight)},
                                                {u"WIDTH", SizeOf(typewriter.AppletWidth)}});
    tag.Origin(u"COPYRIGHT", u"DOCUMENTATION");
    if (typewriter.ReadFromFile)
        tag.ParamUnlessEmpty(u"TEXTFILE", typewriter.TextFile);
    else
        tag.ParamUnlessEmpty(u"TEXT.0", ReplaceAll(typewriter.TypedText, lineEnd, lineBreak));
    tag.ParamUnlessEmpty(u"FONTNAME", typewriter.FontName);
    tag.ParamUnlessEmpty(u"FONTSIZE", typewriter.FontSize);
    tag.ParamUnlessEmpty(u"FONTSTYLE", StyleOf(typewriter));
    if (!Trim(typewriter.LinkURL).empty())
        tag.Param(u"URL", typewriter.LinkURL);
    tag.Param(u"SPEED", NumberToText(fastestTypewriter + 1 - typewriter.Speed));
    const TextView cycles = CountOf(typewriter.Cycles);
    if (cycles != u"0")
        AddUnlessEmpty(tag, u"CYCLES", typewriter.Cycles, cycles);
    AddUnlessEmpty(tag, u"BGCOLOR", typewriter.BackColor, ChannelsOf(typewriter.BackColor));
    AddUnlessEmpty(tag, u"FGCOLOR", typewriter.TextColor, ChannelsOf(typewriter.TextColor));
    tag.ParamUnlessEmpty(u"BACKGROUND", typewriter.BackImage);

    RequiredFiles required = typewriter.Required;
    RequireFile(required, typewriterBackImageSlot, typewriter.BackImage);
    RequireFile(required, typewriterTextFileSlot, typewriter.TextFile);
    return {
        .Kind = EffectKind::TypewriterText,
        .BODYHTML = tag.Tag(),
        .Required = required,
        .SupportFiles = {u"Typewriter9.class", u"AudioLoader3.class", u"CoolTool3.class"},
    };
}

void ReadTag(TypewriterText& typewriter, const PastedTag& tag)
{
    const bool isOwn = tag.Reading == Quotes::TakenOff;
    const auto either = [&](TextView key, TextView earlier) {
        const Text value = isOwn ? TagValue(tag, key) : Text();
        return value.empty() ? TagValue(tag, earlier) : value;
    };
    typewriter.TypedText = either(u"TEXT.0 VALUE=", u"TEXT VALUE=");
    if (isOwn) {
        typewriter.TypedText = ReplaceAll(typewriter.TypedText, lineBreak, lineEnd);
        typewriter.TextFile = TagValue(tag, u"TEXTFILE VALUE=");
        typewriter.ReadFromFile = !typewriter.TextFile.empty();
    }
    typewriter.FontName = TagValue(tag, u"FONTNAME VALUE=");
    typewriter.FontSize = TagValue(tag, u"FONTSIZE VALUE=");
    const Text style = TagValue(tag, u"FONTSTYLE VALUE=");
    typewriter.Bold = Find(style, u"bold") == 1;
    const std::size_t italic = Find(style, u"italic");
    typewriter.Italic = isOwn ? italic != 0 : italic == 1;
    const int speed = TagNumber(tag, u"SPEED VALUE=", slowestTypewriter, fastestTypewriter);
    typewriter.Speed = isOwn ? fastestTypewriter + 1 - speed : speed;
    typewriter.Cycles = TagValue(tag, u"CYCLES VALUE=");
    typewriter.BackColor = TagValue(tag, u"BGCOLOR VALUE=");
    typewriter.TextColor = either(u"FGCOLOR VALUE=", u"TEXTCOLOR VALUE=");
    typewriter.BackImage = TagValue(tag, u"BACKGROUND VALUE=");
    typewriter.AppletHeight = TagValue(tag, u"HEIGHT=");
    typewriter.AppletWidth = TagValue(tag, u"WIDTH=");
    typewriter.LinkURL = TagValue(tag, u"URL VALUE=");
}

} // namespace orvane
