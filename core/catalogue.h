#pragma once

#include "core/complaint.h"
#include "core/payload.h"
#include "core/text.h"

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

/// Everything fixed about one effect.
struct CatalogueRow
{
    EffectKind Kind;
    ControlName MenuCommand; ///< the object name of the command that opens it
    TextView Picture; ///< name of its picture in the program's resources, such as "status_bar"
    TextView Title;
    TextView Description;
    ControlName Form;    ///< the wizard window
    TextView MarkerName; ///< stands in the comments around the inserted code
    FilesNeeded Files;
    bool ScriptedHelp;     ///< the help on the author's editor is that for scripts
    bool ReplaceInBody;    ///< an earlier copy in the BODY is looked for and replaced
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

/// All effect commands, in menu order.
std::span<const EffectCommand> EffectCommands();

/// The command of that name, or null.
const EffectCommand* FindCommand(ControlName name);

} // namespace orvane
