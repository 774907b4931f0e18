#pragma once

#include "core/fault.h"
#include "core/payload.h"

#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace orvane {

/// Asked when the page holds an earlier copy of the effect; gives true for Yes.
using ReplaceQuestion = std::function<bool()>;

/// The page with the effect in it.
struct EditedPage
{
    std::string Bytes;
    bool operator==(const EditedPage&) const = default;
};

/// The page is not to be written; the author inserts the code by hand.
struct ManualFallback
{
    bool operator==(const ManualFallback&) const = default;
};

using PageEdit = std::variant<EditedPage, ManualFallback, Fault>;

/// The page with the payload's HEAD code behind its head tag, BODY code behind its body tag and
/// event attributes in its body tag. The payload's texts are encoded for the page first; every
/// other byte of it stays. Overflow when a tag lies past position 32767, InvalidProcedureCall when
/// a piece of the page that the work needs has no end.
PageEdit EditPage(std::string_view page, const FinishedPayload& payload,
                  const ReplaceQuestion& askToReplace);

/// Whether `code` holds `begin` and, unless it is empty, `end`: anywhere, in any order, upper and
/// lower case taken as equal.
bool FindEffectInExistingCode(std::string_view code, std::string_view begin, std::string_view end);

/// `code` with the stretch from the first `begin` through the next `end`, and every exact copy of
/// that stretch, replaced by `newText`. InvalidProcedureCall when there is no such stretch,
/// Overflow when it begins or ends past position 32767.
Outcome<std::string> ReplaceEffectInExistingCode(std::string_view code, std::string_view newText,
                                                 std::string_view begin, std::string_view end);

} // namespace orvane
