#pragma once

#include "core/effect_kind.h"
#include "windows/page_builder.h"

namespace orvane {

class RowListPanel;

// Rows that the windows of many effects made for today's browsers have, each under the names that
// are the same everywhere.

/// What an author may type for a message.
enum class MessageText
{
    OneLine,
    Lines,
};

/// The list `lstMessages` of messages and their links, which takes the height that is left. The
/// window that edits one has the effect's help topic.
RowListPanel* AddMessageList(PageBuilder& page, EffectKind kind, MessageText text,
                             Workbench& bench);

/// The address to which a text leads, as `txtLink`, which Browse fills from a page of the author's.
void AddLink(PageBuilder& page, TextView tip = u"The address that a click on the text leads to; "
                                               u"empty for no link");

/// Font, size and style of a text, as services/text_look.h names them.
void AddFont(PageBuilder& page);

/// Font, size, style and colour of a text, as services/text_look.h names them.
void AddTextLook(PageBuilder& page);

/// A colour that is as on the page until the author picks one.
void AddPageColor(PageBuilder& page, ControlName name, TextView label);

/// Whether a text may be aligned as the page has it.
enum class PageAlignment
{
    Offered,
    NotOffered,
};

/// Where a text stands between both edges of its place, as `cboAlign`.
void AddAlignment(PageBuilder& page, PageAlignment ofPage = PageAlignment::NotOffered);

/// From which side a band moves, as `cboDirection`.
void AddDirection(PageBuilder& page, TextView label = u"&Direction:");

/// How often an effect runs, as `cboTimes`: for ever, or up to ten times.
void AddTimes(PageBuilder& page);

/// How one picture gives way to the next: at once, by fading, or by one of the 24 transitions.
void AddChange(PageBuilder& page, ControlName name, TextView label, TextView tip = {});

/// Which of the 24 transitions shows the next one.
void AddTransition(PageBuilder& page, ControlName name, TextView label);

/// Width, height and fit of the pictures, as services/picture_look.h names them.
void AddPictureSize(PageBuilder& page);

/// Where links open, as `cboTarget`: in the same window, in one of the other usual places, or in
/// the frame that the author types.
void AddTarget(PageBuilder& page);

/// The width as `txtWidth`; the words behind it say what 0 is.
void AddWidth(PageBuilder& page, TextView unit = u"pixels; 0 is as wide as its place");

} // namespace orvane
