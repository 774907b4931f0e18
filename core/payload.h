#pragma once

#include "core/effect_kind.h"
#include "core/text.h"

#include <array>
#include <string>
#include <vector>

namespace orvane {

inline constexpr TextView MakerSiteURL = u"http://www.varlo.example";
inline constexpr TextView ProductPageURL = u"http://www.varlo.example/orvane/";

/// The two comment lines at the top of generated script. The second has no line end: the template
/// in which they stand goes on with one.
inline constexpr TextView CreditBanner =
    u"<!-- Script written by Varlo Software - http://www.varlo.example -->\r\n"
    u"<!-- Created by Orvane software - http://www.varlo.example/orvane/ -->";

/// The files that must be copied beside the author's page. The same index in both arrays belongs to
/// one file, with at most 51 files; an empty name is an unused index.
struct RequiredFiles
{
    std::array<Text, 51> RequiredFileNames;   ///< as the page refers to them
    std::array<Text, 51> RequiredFileSources; ///< full paths; empty where the source is not known
    std::int16_t RequiredFileCount = 0; ///< the next free index of a list; may go past the last one
    bool operator==(const RequiredFiles&) const = default;
};

/// A file that an effect makes. It is written into the program's folder when the wizard ends, and
/// goes beside the page as a support file of that name.
struct MadeFile
{
    Text Name;
    std::string Bytes;
    bool IsSecret = false; ///< it holds a password, say, so that only its owner may read it
    bool operator==(const MadeFile&) const = default;
};

/// The generated code of one effect, with the files that it needs. Each Generate() gives a new one,
/// so that nothing of an earlier effect survives.
struct EffectPayload
{
    EffectKind Kind = EffectKind::None;
    Text HEADHTML;
    Text BODYHTML;
    Text OnLoadFunc; ///< name of the function that the BODY tag calls; empty for none
    Text OnLoadArgs; ///< parentheses included
    Text OnUnloadFunc;
    Text OnUnloadArgs; ///< parentheses included
    RequiredFiles Required;
    std::array<Text, 3> SupportFiles; ///< names of the effect's files in the program's folder
    std::vector<MadeFile> MadeFiles;  ///< those of them that the effect makes
    Text SavedHEAD;       ///< a copy of the effect's script or BODY code, kept in OrvaneCore
    Text SavedBODY;       ///< a copy of its BODY code, or that code with sample words
    bool IsBlock = false; ///< for today's browsers; needs the required files and no others
    bool operator==(const EffectPayload&) const = default;
};

/// A payload as the delivery wizard works with it: the code wrapped in its markers, and the BODY
/// tag's attributes.
struct FinishedPayload
{
    EffectPayload Effect; ///< HEADHTML and BODYHTML carry the markers
    Text BeginMarker;
    Text EndMarker;
    Text BODYAttribute;      ///< onLoad and onUnload as they stand in the BODY tag
    Text PreviewCode;        ///< HEAD and BODY code with a line end between them
    bool NeedsFiles = false; ///< files must be published with the page
    bool ScriptedHelp = false;
    bool ReplaceInBody = false;
    bool WantsPageScript =
        false; ///< the author wants the page script for today's browsers beside it
    bool operator==(const FinishedPayload&) const = default;
};

/// Whether the effect needs no page script in today's browsers.
bool RunsByItself(const EffectPayload& effect);

/// The payload with the markers, BODY attributes and flags that the catalogue has for its kind;
/// without markers and flags for a kind that is not in the catalogue.
FinishedPayload Finish(const EffectPayload& effect);

} // namespace orvane
