#pragma once

#include "core/fault.h"
#include "core/payload.h"

#include <functional>
#include <string>
#include <string_view>
#include <variant>

namespace orvane {

/// Asks the author whether an earlier copy of the effect in the page is to be replaced; gives true
/// for Yes.
using ReplaceQuestion = std::function<bool()>;

/// The page with the effect in it: `Bytes` and, behind them, the last `Kept` bytes of the page that
/// was edited. None are kept of a page of usual size; of a long one all that no effect reaches.
struct EditedPage
{
    std::string Bytes;
    std::size_t Kept = 0;

    /// What is kept of the page that was edited.
    std::string_view RestOf(std::string_view page) const { return page.substr(page.size() - Kept); }
    bool operator==(const EditedPage&) const = default;
};

/// The page is not to be written: it has no HEAD or BODY tag for the code, or the author does not
/// want an earlier copy replaced.
struct ManualFallback
{
    bool operator==(const ManualFallback&) const = default;
};

/// The edited page, or why there is none.
using PageEdit = std::variant<EditedPage, ManualFallback, Fault>;

/// The page with the payload's HEAD code directly behind its head tag, its BODY code directly
/// behind its body tag and its event attributes in its body tag. An earlier copy in the HEAD or in
/// an attribute, and in the BODY if `payload.ReplaceInBody`, is replaced if the author agrees; an
/// attribute for which the author says No stays as it is.
/// The payload's texts are encoded for the page. Every byte of the page stays, but the character
/// behind the head or body tag is written once more in front of the inserted code. Overflow when
/// one of the tags lies past position 32767, InvalidProcedureCall when a close tag or, for an
/// attribute, the end of the body tag is missing.
PageEdit EditPage(std::string_view page, const FinishedPayload& payload,
                  const ReplaceQuestion& askToReplace);

/// Whether `code` contains `begin` and, unless it is empty, `end`: anywhere and in any order, upper
/// and lower case taken as equal.
bool FindEffectInExistingCode(std::string_view code, std::string_view begin, std::string_view end);

/// `code` with the stretch from the first `begin` through the next `end`, and every exact copy of
/// that stretch, replaced by `newText`; the two are found in upper or lower case.
/// InvalidProcedureCall when there is no such stretch, Overflow when it ends past position 32766,
/// counted from 1.
Outcome<std::string> ReplaceEffectInExistingCode(std::string_view code, std::string_view newText,
                                                 std::string_view begin, std::string_view end);

} // namespace orvane
