#pragma once

#include "core/file_store.h"
#include "core/payload.h"
#include "delivery/delivery_report.h"
#include "insertion/page_files.h"

#include <optional>
#include <vector>

namespace orvane {

/// A page that a run of the delivery wizard wrote, as it lies on the disk now.
struct DeliveredPage
{
    Text Path;                ///< empty for a page of the author's that the program does not know
    bool IsPublished = false; ///< it was written beside the files that were published
    std::optional<bool> HoldsEffect; ///< nothing where the page cannot be read
    bool HasPageScript = false;
    std::vector<PageFile> Files; ///< that the effect needs beside the page
    bool operator==(const DeliveredPage&) const = default;
};

/// Whether the page of that full path holds the effect; nothing where it cannot be read.
std::optional<bool> HoldsEffect(const FileStore& files, TextView page,
                                const FinishedPayload& payload);

/// The pages of the report, looked at on the disk: those written, then those published. Where there
/// is none and code was copied, one page without a path, of whose files none is looked for.
std::vector<DeliveredPage> LookAtPages(const DeliveryReport& report, const FinishedPayload& payload,
                                       const FileStore& files);

/// The pages that the effect was put into and that need the page script, which they lack.
std::vector<Text> PagesWithoutScript(const FinishedPayload& payload,
                                     const std::vector<DeliveredPage>& pages);

/// What was done and what is so, in words for the author, line by line, without line ends.
std::vector<Text> ReportLines(const DeliveryReport& report, const FinishedPayload& payload,
                              const std::vector<DeliveredPage>& pages);

} // namespace orvane
