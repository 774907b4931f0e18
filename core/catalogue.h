#pragma once

#include "core/complaint.h"
#include "core/effect_kind.h"
#include "core/text.h"

#include <array>
#include <optional>
#include <span>

namespace orvane {

/// The tab of the catalogue on which an effect stands, and its sub-menu of "Special Effects".
enum class CataloguePage
{
    ImageEffects,
    TextEffects,
    OtherEffects,
};

/// When an effect has files that must be published with the page.
enum class FilesNeeded
{
    Never,
    Always,
    WhenListed, ///< when the author listed at least one
};

/// What the preview page has around an effect that a plain page does not show well. The pane is the
/// embedded browser, which has no banner.
struct PreviewWords
{
    TextView AboveBanner; ///< in front of the banner
    TextView Before;      ///< in front of the BODY code
    TextView After;       ///< behind the BODY code
    TextView PaneHead;    ///< in the pane, takes the place of the HEAD code; empty: nothing does
    TextView PaneAfter;   ///< behind the BODY code, in the pane alone
};

/// The row that the list to upload shows for an effect without files.
inline constexpr TextView noRequiredFiles = u"No Required Files.";

/// Everything fixed about one effect.
struct CatalogueRow
{
    EffectKind Kind = EffectKind::None;
    ControlName MenuCommand; ///< the object name of the command that opens it
    TextView Picture; ///< name of its picture in the program's resources, such as "status_bar"
    TextView Title;
    TextView Description;
    TextView OtherWords;       ///< what else authors call it, or look for when they want it
    TextView InTodaysBrowsers; ///< how it runs there, and what the page script cannot change
    bool RunsByItself = false; ///< today's browsers need no page script for it
    ControlName Form;          ///< the wizard window
    TextView MarkerName;       ///< stands in the comments around the inserted code
    FilesNeeded Files = FilesNeeded::Never;
    TextView OtherPages;                  ///< what is to be said of pages that need it as well
    std::array<TextView, 3> Uploads = {}; ///< the list to upload begins with these
    bool UploadsSupportFiles = false;     ///< and goes on with the class files that were chosen
    bool ScriptedHelp = false;            ///< the help on the author's editor is that for scripts
    bool ReplaceInBody = false;           ///< an earlier copy in the BODY is found and replaced
    bool ShowsInStatusLine = false;       ///< of the browser alone, without the page script
    PreviewWords Preview = {};
    std::optional<PreviewWords> BlockPreview = {}; ///< takes the place of Preview for a block
    bool HasButton = true; ///< false for the second of two rows that open the same wizard
};

/// One command of a sub-menu of "Special Effects".
struct EffectCommand
{
    ControlName Name;
    TextView Caption; ///< "&" marks the access key
    CataloguePage Page;
    EffectKind Kind; ///< the effect that it opens
};

/// All effects, in the order of their numbers.
std::span<const CatalogueRow> Catalogue();

/// The row of an effect, or null for a number without one.
const CatalogueRow* FindRow(EffectKind kind);

/// The row of an effect, or one without words and flags for a number without one.
const CatalogueRow& RowOf(EffectKind kind);

/// The row of the effect that the author means: the one whose title or marker name has these
/// letters and digits, in upper or lower case and whatever stands between them, such as
/// "digital-clock"; null when there is none. One with a button comes first.
const CatalogueRow* FindRowCalled(TextView name);

/// All effect commands, in menu order.
std::span<const EffectCommand> EffectCommands();

/// The command of that name, or null.
const EffectCommand* FindCommand(ControlName name);

} // namespace orvane
