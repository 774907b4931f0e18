#include "delivery/editor_help.h"

#include "services/page_editors.h"

#include <algorithm>
#include <iterator>

namespace orvane {

EditorHelp setWebPageEditor(TextView editor, bool scriptedHelp, int pageTopic)
{
    const auto other = std::prev(pageEditors.end());
    const auto found = std::find_if(pageEditors.begin(), other,
                                    [&](const PageEditor& row) { return row.Name == editor; });
    const bool isKnown = found != other;
    const TextView name = isKnown ? found->Name : u"your Web Page editor";
    const int own = !isKnown ? 0 : scriptedHelp ? found->ScriptedTopic : found->Topic;
    return {own == 0 ? pageTopic : own,
            Join({u"Need help inserting this effect into ", name, u"?"})};
}

} // namespace orvane
