#pragma once

#include "core/effect_kind.h"
#include "windows/page_builder.h"

namespace orvane {

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
void AddMessageList(PageBuilder& page, EffectKind kind, MessageText text, Workbench& bench);

/// Font, size, style and colour of a text, as services/text_look.h names them.
void AddTextLook(PageBuilder& page);

/// A colour that is as on the page until the author picks one.
void AddPageColor(PageBuilder& page, ControlName name, TextView label);

/// How often an effect runs, as `cboTimes`: for ever, or up to ten times.
void AddTimes(PageBuilder& page);

/// Where links open, as `cboTarget`: in the same window, in one of the other usual places, or in
/// the frame that the author types.
void AddTarget(PageBuilder& page);

/// The width as `txtWidth`; 0 is as wide as the effect's place.
void AddWidth(PageBuilder& page);

} // namespace orvane
