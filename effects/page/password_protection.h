#pragma once

#include "core/complaint.h"
#include "core/fields.h"
#include "core/pasted_tag.h"
#include "core/payload.h"

#include <optional>

namespace orvane {

/// How pages are protected; the numbers are the indexes of the options.
enum class PasswordScheme
{
    None = -1,
    Script = 0, ///< the page itself asks
    Server = 1, ///< a script of the Web server asks
};

/// What opens the gate of a page; the numbers are the indexes of the options.
enum class PasswordType
{
    One = 0,  ///< one password for one page
    Many = 1, ///< each page's name is its password
};

/// What the author enters on the Password Protection window; the defaults are those of a fresh
/// window.
struct PasswordProtection
{
    PasswordScheme optScheme = PasswordScheme::None;
    PasswordType optPasswordType = PasswordType::One;
    Text GatePassword;
    Text GateUrl; ///< the page behind the gate, or the folder of many pages
    Text LoginUsername;
    Text LoginPassword;
    Text LandingUrl;
    bool ChangeSettings = false; ///< shows the two below; they count without it as well
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

/// The wizard's pages.
namespace password_pages {

inline constexpr int scheme = 0;
inline constexpr int script = 1;
inline constexpr int server = 2;

} // namespace password_pages

/// What the window says about a scheme.
TextView DescriptionOf(PasswordScheme scheme);

/// How the window asks for the page behind the gate.
struct GateWords
{
    TextView Label;
    TextView Example;
};
GateWords GateWordsOf(PasswordType type);

/// What Next, or Done on a last page, refuses on a page, or nothing.
std::optional<Complaint> CheckPage(const PasswordProtection& protection, int page);

/// Mends the addresses of the scheme: no slash behind the gate's, the landing page's prefix, one
/// slash behind the script's folder, and the usual path where none is given.
void Tidy(PasswordProtection& protection);

/// The name of the server's script.
inline constexpr TextView passwordScriptName = u"password.cgi";

/// The text of the server's script. Expects a protection that went through Tidy().
Text PasswordScript(const PasswordProtection& protection);

/// The gate's page text, or that of the login form, which needs the server's script in the
/// program's folder. Expects a protection that passes CheckPage() and went through Tidy().
EffectPayload Generate(const PasswordProtection& protection);

/// Fills the gate's fields from a pasted gate.
void ReadTag(PasswordProtection& protection, const PastedTag& tag);

} // namespace orvane
