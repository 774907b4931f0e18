#pragma once

#include "core/file_store.h"
#include "core/payload.h"
#include "core/preview_pane.h"

#include <optional>

namespace orvane {

/// The author's page in which effects are shown, as it was read last.
struct HostPage
{
    Text Path;
    std::string Bytes;
};

/// The file of the page that the author chose, which is only read.
class HostFile
{
public:
    /// Chooses another page; none for an empty path.
    void GoTo(TextView path);

    /// Reads the page where it was written since the last time. One that is gone stays as it was.
    void Read(const FileStore& files);

    /// The page; nothing when none is chosen.
    const std::optional<HostPage>& Page() const { return m_page; }

    /// Whether the file could not be read the last time.
    bool IsGone() const { return m_isGone; }

private:
    std::optional<HostPage> m_page;
    std::optional<FileFacts> m_facts; ///< of the file as it was read last
    bool m_isGone = false;
};

/// A page for the pane, and the words of the line below it; empty for none.
struct LivePicture
{
    LivePage Page;
    Text Line;
};

/// The page with the effect in it: the author's, as it would be delivered into it, with an earlier
/// copy replaced; an empty one without a host, and where the effect cannot be put into that, which
/// the line says then. Effects that need the page script have it.
LivePicture PictureOf(const EffectPayload& effect, const std::optional<HostPage>& host,
                      const FileStore& files, TextView programFolder);

/// The author's page into which the payload's effect was put, as PictureOf() shows it.
LivePicture PictureWith(const FinishedPayload& payload, const HostPage& edited,
                        const FileStore& files, TextView programFolder);

/// The author's page without an effect; an empty one without a host.
LivePage PictureOf(const std::optional<HostPage>& host);

} // namespace orvane
