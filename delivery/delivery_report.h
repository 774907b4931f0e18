#pragma once

#include "core/text.h"

#include <vector>

namespace orvane {

/// The report's name for the lines of code that load the page script.
inline constexpr TextView pageScriptPart = u"page script";

/// What one run of the delivery wizard has done so far, for its last page.
class DeliveryReport
{
public:
    /// Notes that the effect was written into the page with this full path.
    void PageWritten(TextView path);
    /// Notes that the page with this full path was brought back to an earlier version, without the
    /// effect.
    void PageBroughtBack(TextView path);
    /// Notes that the code for this part of the page, such as "HEAD", was put on the clipboard.
    void CodeCopied(TextView part);
    /// Notes that a file was copied to the folder.
    void FileCopied(TextView folder, TextView name);

    /// Notes that a file that the folder needs could not be copied there.
    void FileMissing(TextView folder, TextView name);

    /// The full path of the page written last, even if it was brought back; empty when there is
    /// none.
    const Text& Page() const { return m_page; }

    /// The folder, with its final separator, that a page or a file was written to last; empty when
    /// there is none.
    const Text& Folder() const { return m_folder; }

    /// Whether the effect stands in a page or its code was put on the clipboard; the page script
    /// alone does not count.
    bool HasDelivered() const;

    /// The words for the author, line by line, without line ends.
    std::vector<Text> Lines() const;

private:
    /// The names of the pages written to one folder, of the files copied and of those missing
    /// there.
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
