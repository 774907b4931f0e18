#include "services/recorded_files.h"

#include "core/file_names.h"
#include "services/file_complaints.h"

#include <limits>

namespace orvane {

std::optional<Complaint> CheckNoBlank(TextView fileName, FileRole role)
{
    if (fileName.find(u' ') == TextView::npos)
        return std::nullopt;
    const TextView word = role == FileRole::Image ? u"image" : u"sound";
    return AboutFiles(Join({u"This special effect does not allow ", word,
                            u" filenames containing space characters.\r\nPlease rename the ", word,
                            u" or select another ", word, u"."}),
                      {Text(fileName)});
}

void ClearRequiredFiles(OrvaneCore& core)
{
    core.Required = {};
    core.RequiredFileCount = 0;
    core.Payload.SupportFiles = {};
}

void RecordRequiredFile(OrvaneCore& core, TextView source, TextView name)
{
    const auto slot = static_cast<std::size_t>(core.RequiredFileCount);
    if (slot < core.Required.Names.size()) {
        core.Required.Sources[slot] = source;
        core.Required.Names[slot] = name;
    }
    if (core.RequiredFileCount < std::numeric_limits<std::int16_t>::max())
        ++core.RequiredFileCount;
}

Text SourceOf(const OrvaneCore& core, TextView name)
{
    for (std::size_t slot = core.Required.Names.size(); slot-- > 0;)
        if (!name.empty() && core.Required.Names[slot] == name)
            return core.Required.Sources[slot];
    return {};
}

void SetRequiredFileCount(OrvaneCore& core)
{
    std::size_t count = core.Required.Names.size();
    while (count > 0 && core.Required.Names[count - 1].empty())
        --count;
    core.RequiredFileCount = static_cast<std::int16_t>(count);
}

void RequireFile(RequiredFiles& files, std::size_t slot, TextView name)
{
    files.Names.at(slot) = name;
    Text& source = files.Sources.at(slot);
    if (name.empty() || GetFileName(source) != name)
        source.clear();
}

void RequireBrowsedFile(RequiredFiles& files, std::size_t slot, TextView name)
{
    files.Names.at(slot) = name;
    if (name.empty())
        files.Sources.at(slot).clear();
}

Text RequirePath(RequiredFiles& files, std::size_t slot, TextView path)
{
    const Text name(GetFileName(path));
    files.Names.at(slot) = name;
    files.Sources.at(slot) = name.empty() || name == path ? Text() : Text(path);
    return name;
}

} // namespace orvane
