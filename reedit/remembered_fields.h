#pragma once

#include "core/file_store.h"
#include "core/payload.h"
#include "reedit/effects_in_page.h"

#include <optional>
#include <string_view>

namespace orvane {

/// What the fields of a wizard held when its effect was delivered.
struct RememberedFields
{
    EffectKind Kind = EffectKind::None;
    Text Draft; ///< without secrets
    bool operator==(const RememberedFields&) const = default;
};

/// Keeps what the fields held under a digest of the text that they gave, for its owner alone. A
/// failure is ignored: the author did not ask for it. `draft` is the effect's, which has no
/// secrets.
void RememberFields(FileStore& files, TextView stateFolder, const FinishedPayload& payload,
                    TextView draft);

/// What was kept of the effect whose text stands in the page, whatever the page's path, encoding
/// and line ends; nothing when that was never delivered here, or the text was changed by hand. Of
/// several blocks in the body, the first that is known counts.
std::optional<RememberedFields> FieldsOf(const FileStore& files, TextView stateFolder,
                                         std::string_view page, const EffectInPage& effect);

} // namespace orvane
