#pragma once

#include "core/dialogs.h"
#include "core/payload.h"
#include "core/settings.h"
#include "core/text.h"

#include <cstdint>
#include <optional>
#include <variant>

namespace orvane {

/// A value as the platform's registry tells it: nothing, a text or a number.
using RegistryVariant = std::variant<std::monostate, Text, std::int32_t>;

/// What a registry read of one value gave.
struct RegistryAnswer
{
    enum class Type
    {
        Missing,
        Characters,
        Number,
        Other,
    };
    Type Kind = Type::Missing;
    Text Buffer; ///< a text's characters, its stored terminator included
    std::int32_t Number = 0;
    bool ReadFailed = false; ///< type and size were told, the value was not
};

/// The state that the windows share; one instance lives for the whole run.
struct OrvaneCore
{
    Text DefaultPath;          ///< last folder used for images
    RegistryVariant IEVersion; ///< the last platform value read: version text, then browser command
    EffectPayload Payload;
    Text WizardParam;
    Text SavedHEAD; ///< a wizard's own copy of its code between its pages
    Text SavedBODY;
    RequiredFiles Required; ///< files collected by the wizard that is open
    std::int16_t RequiredFileCount = 0;
    bool EditMode = false; ///< the next wizard fills itself from pasted code
    Text AppletText;       ///< eight letters behind CODE= of the pasted tag
    Text AppletTextAfterCODE;
    Text PastedApplet; ///< the whole pasted tag
    Text ImageFolderMemo;
    Text LinkFolderMemo;
    Text LastSoundFolder;
    Text BrowserPathChoice;
    Text RandomMode;
    bool TransitionsImageMode = false;
    Text ProgramFolder; ///< without a separator at its end
};

/// The PARAM line that marks an applet as made by this program, without a line end.
inline constexpr TextView wizardParamLine =
    u"<PARAM NAME=WIZARD VALUE=\"Created with Orvane.  Orvane Web site at: "
    u"http://www.varlo.example/orvane/\">";

/// `text` with every apostrophe escaped by a backslash.
Text EscapeApostrophes(TextView text);

/// The variant after a registry read: a text keeps its terminator, a text that cannot be read
/// empties it; a missing value, another type or an unread number leaves `current`.
RegistryVariant AfterRegistryRead(const RegistryVariant& current, const RegistryAnswer& answer);

/// Shows the Open dialog and stores the picked path in BrowserPathChoice; Cancel stores nothing.
void BrowseDialog(OrvaneCore& core, Dialogs& dialogs, const FileRequest& request);

/// Stores the folder as the last one used, for this run and the next.
void SaveDefaultPath(OrvaneCore& core, Settings& settings, TextView folder);

/// Tells the author to use Browse, unless file fields were unlocked in the preferences.
void WarnInputBoxLocked(const Settings& settings, Dialogs& dialogs);

/// Whether file fields may be typed into.
bool AreInputBoxesUnlocked(const Settings& settings);

/// Always the empty text, so that a picked file stands under its bare name: a page's images and
/// links lie beside the page.
Text RelativePrefix(TextView caption, TextView path);

} // namespace orvane
