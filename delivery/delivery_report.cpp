#include "delivery/delivery_report.h"

#include "core/file_names.h"
#include "services/add_once.h"

#include <algorithm>

namespace orvane {

namespace {

/// One line, if there is a name to put behind the words.
void AddLine(std::vector<Text>& lines, TextView words, const std::vector<Text>& names)
{
    if (names.empty())
        return;
    Text line(words);
    for (const Text& name : names)
        line += (&name == &names.front() ? Text(u": ") : Text(u", ")) + name;
    lines.push_back(std::move(line));
}

} // namespace

DeliveryReport::FolderState& DeliveryReport::At(TextView folder)
{
    Text path = WithSeparator(folder);
    const auto found = std::find_if(m_folders.begin(), m_folders.end(),
                                    [&](const FolderState& known) { return known.Path == path; });
    if (found != m_folders.end())
        return *found;
    return m_folders.emplace_back(FolderState{.Path = std::move(path)});
}

void DeliveryReport::PageWritten(TextView path)
{
    FolderState& folder = At(FolderOf(path));
    AddOnce(folder.Pages, GetFileName(path));
    std::erase(m_broughtBack, path);
    m_page = path;
    m_folder = folder.Path;
}

void DeliveryReport::PageBroughtBack(TextView path)
{
    std::erase(At(FolderOf(path)).Pages, GetFileName(path));
    AddOnce(m_broughtBack, path);
}

void DeliveryReport::CodeCopied(TextView part)
{
    AddOnce(m_parts, part);
}

void DeliveryReport::FileCopied(TextView folder, TextView name)
{
    FolderState& state = At(folder);
    AddOnce(state.Copied, name);
    std::erase(state.Missing, name);
    m_folder = state.Path;
}

void DeliveryReport::FileMissing(TextView folder, TextView name)
{
    FolderState& state = At(folder);
    AddOnce(state.Missing, name);
    std::erase(state.Copied, name);
}

bool DeliveryReport::HasDelivered() const
{
    // The page script alone brings no effect.
    return std::any_of(m_parts.begin(), m_parts.end(),
                       [](const Text& part) { return part != pageScriptPart; }) ||
           std::any_of(m_folders.begin(), m_folders.end(),
                       [](const FolderState& folder) { return !folder.Pages.empty(); });
}

std::vector<Text> DeliveryReport::Lines() const
{
    std::vector<Text> lines;
    if (m_folder.empty() && m_parts.empty())
        lines.emplace_back(u"Nothing was delivered: no Web page was written, no HTML code was "
                           u"copied and no file was published.");
    AddLine(lines, u"HTML code copied for you to paste", m_parts);
    AddLine(lines, u"Earlier version brought back", m_broughtBack);
    for (const FolderState& folder : m_folders) {
        AddLine(lines, Join({u"Web page with the special effect in ", folder.Path}), folder.Pages);
        AddLine(lines, Join({u"Copied to ", folder.Path}), folder.Copied);
        AddLine(lines, Join({u"Missing in ", folder.Path}), folder.Missing);
    }
    return lines;
}

} // namespace orvane
