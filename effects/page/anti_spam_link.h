#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/payload.h"
#include "core/settings.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// What the author enters on the Anti-Spam Email Link window; the defaults are those of a fresh
/// window without a stored address.
struct AntiSpamLink
{
    static constexpr std::array Kinds = {EffectKind::AntiSpamLink};
    static constexpr int Pages = 1;

    Text Email;
    Text MailToText;
    Text txtImage; ///< file name; empty for a link of text alone
    Text txtSubject;
    bool chkAntiSpam = true; ///< the page has the address in pieces, put together by script
    bool operator==(const AntiSpamLink&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<AntiSpamLink> Link, class Field>
void ForEachField(Link& link, Field&& field)
{
    field("Email", link.Email);
    field("MailToText", link.MailToText);
    field("txtImage", link.txtImage);
    field("txtSubject", link.txtSubject);
    field("chkAntiSpam", link.chkAntiSpam);
}

/// Fills in the author's stored address, which the maker's page editor shares; empties the field
/// when none is stored.
void Recall(AntiSpamLink& link, const Settings& settings);
/// Stores the author's address.
void Remember(const AntiSpamLink& link, Settings& settings);

/// The complaint of the first check that fails, in the order of the fields, or nothing when the
/// wizard may finish.
std::optional<Complaint> Check(const AntiSpamLink& link);

/// The hints at quotes in what the call of the script takes.
std::vector<Hint> HintsOf(const AntiSpamLink& link);

/// The link's page text. Expects a link that passes Check().
EffectPayload Generate(const AntiSpamLink& link);

} // namespace orvane
