#pragma once

#include "core/file_store.h"
#include "core/preview_pane.h"

namespace orvane {

/// The file of the page that the pane shows: there while the engine reads it, and no longer.
class ShownFile
{
public:
    /// The store must outlive this object.
    explicit ShownFile(FileStore& files) : m_files(files) {}

    /// The page; its path is where the file lies now.
    const PanePage& Page() const { return m_page; }

    /// Writes the file of the next page, where that of the one before is removed already. When it
    /// cannot be written, Page() stays what it was.
    [[nodiscard]] Done Begin(const PanePage& page);

    /// Puts the file in its place, where it is not there any more.
    [[nodiscard]] Done Put();

    /// Deletes the file, which the engine has read.
    void Remove();

    /// The file under its name now belongs to the author's browser, and until End() the pages get
    /// another name in its folder. True when the page was still being read and was written to that.
    bool Leave();

    /// Ends what Leave() began.
    void End() { m_isLeft = false; }

private:
    FileStore& m_files;
    PanePage m_page;
    bool m_isGone = true; ///< deleted, or never written
    bool m_isLeft = false;
};

} // namespace orvane
