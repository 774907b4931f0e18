#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/look.h"
#include "core/pasted_tag.h"
#include "core/payload.h"
#include "services/hints.h"

#include <array>
#include <optional>

namespace orvane {

/// How pages are protected; the numbers are the indexes of the options.
enum class PasswordScheme
{
    None = -1,
    Script = 0, ///< a script in the page asks for the password
    Server = 1, ///< a script on the Web server checks user name and password
};

/// Which password a page with the script accepts; the numbers are the indexes of the options.
enum class PasswordType
{
    One = 0,  ///< one password for one page
    Many = 1, ///< the name of a page, which is then shown
};

/// What the author enters on the Password Protection window; the defaults are those of a fresh
/// window.
struct PasswordProtection
{
    static constexpr std::array Kinds = {EffectKind::PasswordScript, EffectKind::PasswordServer};
    static constexpr int Pages = 3;

    PasswordScheme optScheme = PasswordScheme::None;
    PasswordType optPasswordType = PasswordType::One;
    Text GatePassword;
    Text GateUrl; ///< the page that is shown then, or the folder of the many pages
    Text LoginUsername;
    Text LoginPassword;
    Text LandingUrl;
    bool ChangeSettings = false; ///< shows the two fields below, which are used in any case
    Text CgiDirectory;
    Text PerlPath = u"/usr/bin/perl";
    bool operator==(const PasswordProtection&) const = default;
};

/// Calls `field` with the name of each control and the field that it shows, in the window's order.
template <ConstOr<PasswordProtection> Protection, class Field>
void ForEachField(Protection& protection, Field&& field)
{
    field("optScheme", protection.optScheme);
    field("optPasswordType", protection.optPasswordType);
    field(Secret("GatePassword"), protection.GatePassword);
    field("GateUrl", protection.GateUrl);
    field(Secret("LoginUsername"), protection.LoginUsername);
    field(Secret("LoginPassword"), protection.LoginPassword);
    field("LandingUrl", protection.LandingUrl);
    field("ChangeSettings", protection.ChangeSettings);
    field("CgiDirectory", protection.CgiDirectory);
    field("PerlPath", protection.PerlPath);
}

/// The wizard's pages, counted from 0.
namespace password_pages {

inline constexpr int scheme = 0;
inline constexpr int script = 1;
inline constexpr int server = 2;

} // namespace password_pages

/// Chooses the scheme of that kind for a fresh protection; none for the script, which a fresh
/// window does not choose either.
void ChooseKind(PasswordProtection& protection, EffectKind kind);

/// The words on the chosen scheme and type of password, and the rows that they need.
Look LookOf(const PasswordProtection& protection);

/// The complaint that keeps the author on a page, or nothing; the script page has none.
std::optional<Complaint> CheckPage(const PasswordProtection& protection, int page);

/// The page that follows: that of the chosen scheme, or -1 when the wizard ends.
int PageAfter(const PasswordProtection& protection, int page);

/// Completes the fields of the chosen scheme. Script: a slash at the end of GateUrl is removed.
/// Server: LandingUrl gets "http://" if it begins with "www.", CgiDirectory a slash at its end, and
/// an empty PerlPath becomes "/usr/bin/perl".
void Tidy(PasswordProtection& protection);

/// The hints at quotation marks in what the chosen scheme's script takes, and at an empty password
/// of the page's own script.
std::vector<Hint> HintsOf(const PasswordProtection& protection);

/// The page text of the chosen scheme: the script, or the login form with its file, the script for
/// the Web server. Expects a protection that passes CheckPage() on the pages of its scheme and went
/// through Tidy().
EffectPayload Generate(const PasswordProtection& protection);

/// Fills the fields of the script scheme from a pasted script. In a script that Generate() gives,
/// no password is found.
void ReadTag(PasswordProtection& protection, const PastedTag& tag);

} // namespace orvane
