#pragma once

#include "core/payload.h"
#include "delivery/required_files.h"
#include "insertion/page_backups.h"
#include "program/cli_dialogs.h"
#include "program/cli_effect.h"
#include "program/cli_pages.h"

#include <optional>
#include <set>

namespace orvane {

/// The place of the backups on that day.
BackupsPlace BackupsOf(const CliWorld& world);

/// Writes the page in place of `shown`, after its backups; else tells why not.
std::optional<PageEnd> PutEdited(const CliWorld& world, FileStore& files, CliDialogs& dialogs,
                                 const Text& page, std::string_view shown, std::string_view edited);

/// Brings the files of one effect beside the pages that hold it, once to each
/// folder.
class CliDelivery
{
public:
    /// `world` must outlive the object. Files of unknown source come from
    /// `sources`; where that is empty, they are expected beside each page.
    CliDelivery(const CliWorld& world, CliPayload ready, Text sources)
        : m_world(world), m_ready(std::move(ready)), m_sources(std::move(sources))
    {
    }

    const FinishedPayload& Payload() const { return m_ready.Payload; }

    /// How the work on a page ends that holds the effect now: its files are
    /// copied to the page's folder, and the fields are remembered for later
    /// changes. `words` tell that it is done.
    PageEnd Finish(const Text& page, FileStore& files, CliDialogs& dialogs, TextView words);

private:
    Outcome<MissingFiles> CopyTo(TextView folder, FileStore& files, CliDialogs& dialogs);
    Done BringOwnFiles(FileStore& files, const EffectPayload& effect) const;

    const CliWorld& m_world;
    CliPayload m_ready;
    Text m_sources;
    std::set<Text> m_servedFolders;
    bool m_isRemembered = false;
};

} // namespace orvane
