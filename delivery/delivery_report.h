#pragma once

#include "core/text.h"

#include <vector>

namespace orvane {

/// What the report calls the lines that lead to the page script.
inline constexpr TextView pageScriptPart = u"page script";

/// What one run of the delivery wizard has done so far, for its last page.
class DeliveryReport
{
public:
    /// The effect stands in the page with this full path.
    void PageWritten(TextView path);
    /// The page with this full path holds an earlier version again, without the effect.
    void PageBroughtBack(TextView path);
    /// A piece of code, such as "HEAD", was put on the clipboard.
    void CodeCopied(TextView part);
    /// A file was brought to the folder, or could not be.
    void FileCopied(TextView folder, TextView name);
    void FileMissing(TextView folder, TextView name);

    /// The page written last; empty when there is none.
    const Text& Page() const { return m_page; }

    /// The folder that got a page or a file last; empty when there is none.
    const Text& Folder() const { return m_folder; }

    /// Whether the effect reached a page or the clipboard.
    bool HasDelivered() const;

    /// What the author is told, line by line.
    std::vector<Text> Lines() const;

private:
    /// What lies in one folder now, and what its pages still lack there.
    struct FolderState
    {
        Text Path; ///< with its final separator
        std::vector<Text> Pages;
        std::vector<Text> Copied;
        std::vector<Text> Missing;
    };
    FolderState& At(TextView folder);

    Text m_page;
    Text m_folder;
    std::vector<Text> m_parts;
    std::vector<Text> m_broughtBack;
    std::vector<FolderState> m_folders;
};

} // namespace orvane
