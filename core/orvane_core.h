#pragma once

#include "core/dialogs.h"
#include "core/payload.h"
#include "core/settings.h"
#include "core/shell.h"
#include "core/text.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

namespace orvane {

/// A value out of the platform's registry: nothing, a text or a number.
using RegistryVariant = std::variant<std::monostate, Text, std::int32_t>;

/// The result of reading one value out of the registry.
struct RegistryAnswer
{
    /// The type under which the registry stores the value.
    enum class Type
    {
        Missing,
        Characters,
        Number,
        Other,
    };
    Type Kind = Type::Missing;
    Text Buffer; ///< the characters of a text, with the terminator that is stored behind them
    std::int32_t Number = 0;
    bool ReadFailed = false; ///< type and size could be read, the value could not
};

/// What all CFile objects of a run have in common.
struct frmCmnDlg
{
    Text LastFolder; ///< of the last picked file, with its separator; empty before the first
};

/// The state that the windows share; one instance lives for the whole run.
struct OrvaneCore
{
    Text DefaultPath;          ///< the folder in which lists of images begin
    RegistryVariant IEVersion; ///< browser version, later the default browser's command
    EffectPayload Payload;
    Text WizardParam;         ///< the line `wizardParamLine`
    Text SavedHEAD;           ///< the delivered effect's EffectPayload::SavedHEAD
    Text SavedBODY;           ///< the same of SavedBODY
    bool EditMode = false;    ///< the next wizard fills itself from pasted code
    Text AppletText;          ///< eight characters behind CODE= of the pasted tag
    Text AppletTextAfterCODE; ///< the first five of them
    Text ImageFolderMemo;     ///< where Browse found an image last
    Text LinkFolderMemo;      ///< where Browse found a page to link to last
    Text LastSoundFolder;     ///< where Browse found a sound last
    Text BrowserPathChoice;   ///< the program that BrowseDialog() picked last
    frmCmnDlg CommonDialog;   ///< for every CFile
    /// "image" or "quote", set by the commands of Random Image and Random Quote for their one
    /// window, frmRandom.
    Text RandomMode;
    /// Set by the command of Image Transitions for the window TextTransitions, which then works on
    /// images and not on texts; cleared by that of Text Transitions.
    bool TransitionsImageMode = false;
    Text ProgramFolder; ///< without a separator at its end
};

/// The PARAM line that marks an applet as made by this program, without a line end.
inline constexpr TextView wizardParamLine =
    u"<PARAM NAME=WIZARD VALUE=\"Created with Orvane.  Orvane Web site at: "
    u"http://www.varlo.example/orvane/\">";

/// `text` with every apostrophe escaped by a backslash.
Text EscapeApostrophes(TextView text);

/// What `current` becomes by a registry read. A text replaces it, stored terminator included; a
/// text that cannot be read empties it. Anything else that is missing, unreadable or of another
/// type leaves it as it is.
RegistryVariant AfterRegistryRead(const RegistryVariant& current, const RegistryAnswer& answer);

/// Reads the command of the desktop's default browser into IEVersion, as if the classes root of a
/// registry held it; empties it where the desktop names none.
void ReadClassesRootValue(OrvaneCore& core, Shell& shell);

/// Sets the modes that a command of the catalogue sets before it shows its window.
void SetModes(OrvaneCore& core, std::string_view menuCommand);

/// Shows the Open dialog and stores the picked path in BrowserPathChoice; Cancel stores nothing.
void BrowseDialog(OrvaneCore& core, Dialogs& dialogs, const FileRequest& request);

/// Makes the folder the one in which lists of images begin, for this run and the next ones.
void SaveDefaultPath(OrvaneCore& core, Settings& settings, TextView folder);

/// Tells the author to use Browse, unless file fields were unlocked in the preferences.
void WarnInputBoxLocked(const Settings& settings, Dialogs& dialogs);

/// Whether file fields may be typed into.
bool AreInputBoxesUnlocked(const Settings& settings);

/// Always the empty text, so that a picked file stands under its bare name: a page's images and
/// links lie beside the page.
Text RelativePrefix(TextView caption, TextView path);

} // namespace orvane
