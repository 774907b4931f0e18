#pragma once

#include "core/dialogs.h"
#include "core/fault.h"
#include "core/text.h"

#include <cstdint>

namespace orvane {

/// The one file dialog that every CFile of a run opens, as far as it remembers anything.
struct frmCmnDlg
{
    Text LastFolder; ///< of the last picked file; empty before the first
};

/// The catalogue's filter: 0 pages, 1 images, 2 multimedia, 3 Java, 4 texts, 5 programs, 6 sounds,
/// 7 videos; empty for any other kind.
TextView FileFilter(std::int32_t kind);

/// One use of the file dialogs: set the properties, browse, read the properties. Each operation
/// gives the fault of a picked name without a folder, which leaves Path as it was.
class CFile
{
public:
    /// Both are used until the last browse is over.
    CFile(Dialogs& dialogs, frmCmnDlg& shared) : m_dialogs(dialogs), m_shared(shared) {}

    Text Path;               ///< folder of the last chosen file, without a separator at its end
    Text Filename;           ///< its name; for Browse() also the proposed one
    Text PathAndFilename;    ///< its full path
    bool CancelError = true; ///< false: a cancelled save counts as the empty name picked
    Text DialogTitle = u"Browse";
    std::int16_t FilterIndex = 1; ///< the pair selected first, counted from 1
    Text Filter = u"All Files (*.*)|*.*";
    Text InitDir = u"C:\\"; ///< empty: the folder of the run's last picked file

    /// The full path to save under, an existing file having been confirmed; empty on Cancel.
    [[nodiscard]] Outcome<Text> GetFileNameForSave();

    /// Lets the author pick an existing file by the properties; Cancel leaves them all.
    [[nodiscard]] Done Browse();

    /// The full path of an existing file, with the catalogue's filter, or for kind 8 with Filter
    /// and InitDir; empty on Cancel.
    [[nodiscard]] Outcome<Text> BrowseForFile(std::int32_t kind);

    /// The name behind the last separator; the whole text when there is none.
    static Text GetFileName(TextView path);

    /// What stands before the last separator; InvalidProcedureCall when there is none.
    static Outcome<Text> GetPath(TextView path);

    /// These two do nothing: opening and saving is the caller's work.
    void OpenFile() {}
    void Save() {}

private:
    FileRequest Request(TextView title, TextView filter, TextView initDir) const;
    Outcome<Text> Store(const Text& picked);

    Dialogs& m_dialogs;
    frmCmnDlg& m_shared;
};

} // namespace orvane
