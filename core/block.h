#pragma once

#include "core/fields.h"
#include "core/payload.h"
#include "core/text.h"

#include <variant>
#include <vector>

namespace orvane {

/// A message of a block, and the address that it leads to; empty for none.
struct BlockRow
{
    Text Words; ///< lines of them end in CR LF
    Text Link;
    bool operator==(const BlockRow&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the order of the
/// window of one message.
template <ConstOr<BlockRow> Row, class Field>
void ForEachField(Row& row, Field&& field)
{
    field("txtWords", row.Words);
    field("txtLink", row.Link);
}

/// A message of a band whose messages have colours of their own.
struct ColoredRow
{
    Text Words;
    Text Link;  ///< empty for none
    Text Color; ///< of its text; empty: as the others
    bool operator==(const ColoredRow&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the order of the
/// window of one message.
template <ConstOr<ColoredRow> Row, class Field>
void ForEachField(Row& row, Field&& field)
{
    field("txtWords", row.Words);
    field("txtLink", row.Link);
    field(ColorField("cmdColor"), row.Color);
}

/// A quotation of a block.
struct QuoteRow
{
    Text Words;  ///< lines of them end in CR LF
    Text Author; ///< empty for none
    Text Link;   ///< of the words; empty for none
    bool operator==(const QuoteRow&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the order of the
/// window of one quotation.
template <ConstOr<QuoteRow> Row, class Field>
void ForEachField(Row& row, Field&& field)
{
    field("txtWords", row.Words);
    field("txtAuthor", row.Author);
    field("txtLink", row.Link);
}

/// A picture of a block.
struct BlockPicture
{
    Text Address;     ///< as the page refers to it
    Text Source;      ///< full path; empty where it is not known
    Text Description; ///< for those who do not see it; empty for a mere ornament
    Text Link;        ///< empty for none
    int Width = 0;    ///< of the file, in pixels; 0 where it is not known
    int Height = 0;
    bool operator==(const BlockPicture&) const = default;
};

/// Calls `field` with the name of each field, which is that of its control in the window of one
/// picture where it has one there.
template <ConstOr<BlockPicture> Picture, class Field>
void ForEachField(Picture& picture, Field&& field)
{
    field("Address", picture.Address);
    field("txtDescription", picture.Description);
    field("txtLink", picture.Link);
    field(SourceField("Source"), picture.Source);
    field("Width", picture.Width);
    field("Height", picture.Height);
}

/// A trigger of a block, and the picture that it shows.
struct RolloverRow
{
    Text Words;           ///< of the trigger; where that is a picture, its description
    BlockPicture Picture; ///< that is shown; its link is that of the trigger
    BlockPicture Trigger; ///< in place of the words; has no address where there is none
    bool operator==(const RolloverRow&) const = default;
};

/// Calls `field` with the name of each field, which is that of its control in the window of one
/// trigger.
template <ConstOr<RolloverRow> Row, class Field>
void ForEachField(Row& row, Field&& field)
{
    field("txtWords", row.Words);
    field("txtPicture", row.Picture.Address);
    field("txtDescription", row.Picture.Description);
    field("txtLink", row.Picture.Link);
    field("txtTrigger", row.Trigger.Address);
    field(SourceField("PictureSource"), row.Picture.Source);
    field("PictureWidth", row.Picture.Width);
    field("PictureHeight", row.Picture.Height);
    field(SourceField("TriggerSource"), row.Trigger.Source);
    field("TriggerWidth", row.Trigger.Width);
    field("TriggerHeight", row.Trigger.Height);
}

/// An attribute of a block's root, as it is meant: without quotes and references.
struct BlockAttribute
{
    Text Name;
    Text Value;
    bool operator==(const BlockAttribute&) const = default;
};

/// Calls `field` with the name of each field.
template <ConstOr<BlockAttribute> Attribute, class Field>
void ForEachField(Attribute& attribute, Field&& field)
{
    field("Name", attribute.Name);
    field("Value", attribute.Value);
}

using BlockRows = std::vector<BlockRow>;
using ColoredRows = std::vector<ColoredRow>;
using QuoteRows = std::vector<QuoteRow>;
using BlockPictures = std::vector<BlockPicture>;
using RolloverRows = std::vector<RolloverRow>;
using BlockAttributes = std::vector<BlockAttribute>;

/// A text in paragraphs, with an empty line between each two; its lines end in CR LF.
struct BlockParagraphs
{
    Text Words;
    bool operator==(const BlockParagraphs&) const = default;
};

/// Such a text, all of which leads to an address; empty for none.
struct LinkedParagraphs
{
    Text Words;
    Text Link;
    bool operator==(const LinkedParagraphs&) const = default;
};

/// A picture with texts that belong to it, whose lines end in CR LF.
struct BlockFigure
{
    BlockPicture Picture; ///< its link does not count
    std::vector<Text> Words;
    bool operator==(const BlockFigure&) const = default;
};

/// The pictures of a button. The first one has its description and its link; the others are seen
/// after it, under the mouse, and while it is pressed.
struct BlockButton
{
    BlockPictures AtRest;
    BlockPictures Over;
    BlockPictures Pressed;
    bool operator==(const BlockButton&) const = default;
};

/// A sound of a block.
struct BlockSound
{
    Text Address; ///< as the page refers to it; empty for none
    Text Source;  ///< full path; empty where it is not known
    bool operator==(const BlockSound&) const = default;
};

/// The day on which the page is seen, which the script alone can tell.
struct BlockDay
{
    bool operator==(const BlockDay&) const = default;
};

/// What a block shows, which the page has as ordinary HTML: a text whose lines end in CR LF, in a
/// line of the page or in paragraphs of its own, a link, rows, pictures, a figure, a button, a
/// player for a sound, a day, or nothing.
using BlockContent = std::variant<std::monostate, Text, BlockParagraphs, LinkedParagraphs, BlockRow,
                                  BlockRows, ColoredRows, QuoteRows, RolloverRows, BlockPictures,
                                  BlockFigure, BlockButton, BlockSound, BlockDay>;

/// Which pictures of a block are seen, and loaded, without its script.
enum class PicturesSeen
{
    All,
    First,
    None,
};

/// One stretch of a page that is made for today's browsers: a root element with the author's
/// content inside it, the options as its attributes, and the script of its kind, which never
/// changes with them.
struct Block
{
    Text Kind; ///< with the number of its format, such as "scroller-1"
    BlockAttributes Attributes;
    BlockContent Content;
    PicturesSeen Seen = PicturesSeen::All;
};

/// The page text of a block. Whatever the values are, none ends an attribute, an element, a comment
/// or the script, and none begins one; characters that no page can hold are left out. Attributes
/// whose names no tag can hold are left out too.
Text WriteBlock(const Block& block);

/// The open tag of a block's root, for a block that is no DIV or SPAN.
Text OpenTagOf(const Block& block, TextView element);

/// The element with the script of a block's kind.
Text ScriptOf(const Block& block);

/// All pictures of a block, in the order in which they stand there.
BlockPictures PicturesOf(const BlockContent& content);

/// The files beside the page that a block's content and these sounds name, each once. Those at
/// another place are left out, and so is what goes beyond the slots. A source counts where it is a
/// file of that name.
RequiredFiles FilesOf(const BlockContent& content, const std::vector<BlockSound>& sounds = {});

/// The text as a page shows it on one line: without control characters, with a blank in place of a
/// line end, and without blanks at both ends.
Text OneLine(TextView text);

/// The lines of a text as a page shows them: without control characters, with one blank where
/// several stand, without blanks at both ends of a line and without empty lines at both ends of the
/// text. They end in CR LF.
Text TidyLines(TextView text);

/// The same, with one empty line where several stand.
Text TidyParagraphs(TextView text);

FieldTexts TextsOf(const BlockParagraphs& paragraphs);
void SetField(BlockParagraphs& paragraphs, const FieldTexts& texts);

} // namespace orvane
