#pragma once

#include "core/file_store.h"
#include "core/opening.h"
#include "reedit/effects_in_page.h"

#include <string_view>

namespace orvane {

/// What a wizard opens with in which an effect of a page is changed.
struct FieldsInPage
{
    EffectKind Kind = EffectKind::None;
    Opening Opens = FreshStart(); ///< fresh where nothing can be read
    bool IsKnown = false;         ///< these fields give the effect's text as it stands in the page
};

/// The fields that the effect was delivered with here or, where those are not known, what can be
/// read of its tag or block in the page. Expects an effect of EffectsIn(page) that is of some kind.
FieldsInPage ReadFields(const FileStore& files, TextView stateFolder, std::string_view page,
                        const EffectInPage& effect);

} // namespace orvane
