#pragma once

#include "core/text.h"

#include <array>

namespace orvane {

/// An editor for Web pages, with its topics in the help book: how code is inserted with it, and
/// the same for code whose script needs a word of its own. Without a topic both are 0.
struct PageEditor
{
    TextView Name;
    int Topic = 0;
    int ScriptedTopic = 0;
};

/// The editors that windows list, in that order; the last one stands for any other.
inline constexpr std::array<PageEditor, 10> pageEditors = {{
    {u"AOLPress", 39, 39},
    {u"FrontPage", 21, 29},
    {u"FrontPage Express", 37, 38},
    {u"DreamWeaver", 55, 55},
    {u"Microsoft Publisher 98", 34, 34},
    {u"NetObjects Fusion", 35, 35},
    {u"Netscape Composer", 36, 36},
    {u"Page Loom"},
    {u"Yahoo/Geocities PageBuilder", 46, 46},
    {u"Other"},
}};

} // namespace orvane
