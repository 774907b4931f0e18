#pragma once

#include "core/dialogs.h"
#include "core/fault.h"
#include "core/orvane_core.h"
#include "core/text.h"

#include <cstdint>

namespace orvane {

/// One use of the file dialogs: set the properties, browse, read the properties. When the picked
/// name has no folder, an operation gives the fault InvalidProcedureCall and leaves Path as it was.
class CFile
{
public:
    /// Both must outlive this object.
    CFile(Dialogs& dialogs, frmCmnDlg& shared) : m_dialogs(dialogs), m_shared(shared) {}

    Text Path;               ///< folder of the last chosen file, without a separator at its end
    Text Filename;           ///< its name; for Browse() also the proposed one
    Text PathAndFilename;    ///< its full path
    bool CancelError = true; ///< false: a cancelled save dialog picks the empty name
    Text DialogTitle = u"Browse";
    std::int16_t FilterIndex = 1; ///< the pair selected first, counted from 1
    Text Filter = u"All Files (*.*)|*.*";
    /// Empty: where the last file of this purpose was found; without a purpose, the folder of the
    /// last file that any CFile picked.
    Text InitDir = u"C:\\";
    FolderPurpose Purpose = FolderPurpose::Other;

    /// The full path to save under, whose overwriting the author has confirmed if the file exists;
    /// empty on Cancel.
    [[nodiscard]] Outcome<Text> GetFileNameForSave();

    /// Lets the author pick an existing file, as the properties say, and fills them; after Cancel
    /// they stay as they are.
    [[nodiscard]] Done Browse();

    /// The full path of an existing file that the author picks, with FileFilter(`kind`), or for
    /// kind 8 with Filter and InitDir; empty on Cancel.
    [[nodiscard]] Outcome<Text> BrowseForFile(std::int32_t kind);

    /// The name behind the last separator; the whole text when there is none.
    static Text GetFileName(TextView path);

    /// What stands before the last separator; InvalidProcedureCall when there is none.
    static Outcome<Text> GetPath(TextView path);

    /// Both do nothing: the caller opens and saves.
    void OpenFile() {}
    void Save() {}

private:
    FileRequest Request(TextView title, TextView filter, TextView initDir) const;
    Outcome<Text> Store(const Text& picked);

    Dialogs& m_dialogs;
    frmCmnDlg& m_shared;
};

} // namespace orvane
