#include "delivery/editor_help.h"

#include <algorithm>

namespace orvane {

namespace {

/// An editor's help topics; 0 stands for the page's own.
struct EditorTopics
{
    TextView Name;
    int Topic;
    int ScriptedTopic; ///< for effects whose script needs a word of its own
};

constexpr EditorTopics editorTopics[] = {
    {u"FrontPage", 21, 29},
    {u"FrontPage Express", 37, 38},
    {u"Microsoft Publisher 98", 34, 34},
    {u"NetObjects Fusion", 35, 35},
    {u"Netscape Composer", 36, 36},
    {u"AOLPress", 39, 39},
    {u"Yahoo/Geocities PageBuilder", 46, 46},
    {u"DreamWeaver", 55, 55},
    {u"Page Loom", 0, 0},
};

} // namespace

EditorHelp setWebPageEditor(TextView editor, bool scriptedHelp, int pageTopic)
{
    const auto found = std::find_if(std::begin(editorTopics), std::end(editorTopics),
                                    [&](const EditorTopics& row) { return row.Name == editor; });
    const bool isKnown = found != std::end(editorTopics);
    const TextView name = isKnown ? found->Name : u"your Web Page editor";
    const int own = !isKnown ? 0 : scriptedHelp ? found->ScriptedTopic : found->Topic;
    return {own == 0 ? pageTopic : own,
            Join({u"Need help inserting this effect into ", name, u"?"})};
}

} // namespace orvane
