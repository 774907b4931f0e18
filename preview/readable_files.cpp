#include "preview/readable_files.h"

#include "core/file_names.h"
#include "insertion/page_script.h"

#include <algorithm>

namespace orvane {

namespace {

/// Whether a file name can go on with this character. A separator before a name means that it lies
/// in another folder.
bool IsOfName(char16_t character)
{
    return character > u'~' || (character >= u'0' && character <= u'9') ||
           (character >= u'A' && character <= u'Z') || (character >= u'a' && character <= u'z') ||
           TextView(u"_-.%/\\").find(character) != TextView::npos;
}

/// Whether the name stands in the text, and not only as a part of another.
bool Names(TextView text, TextView name)
{
    for (auto at = text.find(name); at != TextView::npos; at = text.find(name, at + 1)) {
        const std::size_t behind = at + name.size();
        if ((at == 0 || !IsOfName(text[at - 1])) &&
            (behind == text.size() || !IsOfName(text[behind])))
            return true;
    }
    return false;
}

} // namespace

std::vector<Text> ReadableFiles(const FinishedPayload& payload, const FileStore& files,
                                TextView folder)
{
    const EffectPayload& effect = payload.Effect;
    const Text text = Join({effect.HEADHTML, u"\n", effect.BODYHTML, u"\n", payload.BODYAttribute});
    const auto isOfEffect = [&](const Text& name) {
        const auto isThis = [&](TextView other) { return other == name; };
        return std::ranges::any_of(effect.Required.RequiredFileNames, isThis) ||
               std::ranges::any_of(effect.SupportFiles, isThis) || name == pageScriptFile ||
               Names(text, name);
    };
    std::vector<Text> names = files.Files(folder);
    std::erase_if(names, [&](const Text& name) {
        return EndsWithIgnoringCase(name, u".cgi") || !isOfEffect(name);
    });
    return names;
}

} // namespace orvane
