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
    /// Notes that a page with the effect alone was published under this full path.
    void PagePublished(TextView path);
    /// Notes that the page with this full path was brought back to an earlier version.
    void PageBroughtBack(TextView path, bool holdsEffect);
    /// Notes that the code for this part of the page, such as "HEAD", was put on the clipboard.
    void CodeCopied(TextView part);
    /// Notes that a file was copied to the folder.
    void FileCopied(TextView folder);

    /// The full path of the page written last, even if it was brought back; empty when there is
    /// none.
    const Text& Page() const { return m_page; }

    /// The folder, with its final separator, that a page or a file was written to last; empty when
    /// there is none.
    const Text& Folder() const { return m_folder; }

    /// The full paths of the pages that the effect was written into, without those from which
    /// bringing back took it.
    const std::vector<Text>& Pages() const { return m_pages; }
    const std::vector<Text>& PublishedPages() const { return m_published; }
    const std::vector<Text>& PagesBroughtBack() const { return m_broughtBack; }
    const std::vector<Text>& PartsCopied() const { return m_parts; }

    /// Whether code of the effect itself was put on the clipboard.
    bool HasCopiedCode() const;

    /// Whether the effect stands in a page or its code was put on the clipboard; the page script
    /// alone does not count.
    bool HasDelivered() const { return !m_pages.empty() || HasCopiedCode(); }

private:
    Text m_page;
    Text m_folder;
    std::vector<Text> m_parts;
    std::vector<Text> m_pages;
    std::vector<Text> m_published;
    std::vector<Text> m_broughtBack;
};

} // namespace orvane
