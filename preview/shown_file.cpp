#include "preview/shown_file.h"

#include "core/file_names.h"
#include "preview/preview_page.h"

#include <utility>

namespace orvane {

namespace {

Text OwnPath(TextView path)
{
    return PathIn(FolderOf(path), panePageName);
}

} // namespace

Done ShownFile::Begin(const PanePage& page)
{
    PanePage former = std::exchange(m_page, page);
    if (m_isLeft)
        m_page.Path = OwnPath(page.Path);
    const Done written = Put();
    if (FaultIn(written))
        m_page = std::move(former);
    return written;
}

Done ShownFile::Put()
{
    if (!m_isGone)
        return {};
    const Done done = m_files.PutPrivate(m_page.Path, m_page.Bytes);
    m_isGone = FaultIn(done) != nullptr;
    return done;
}

void ShownFile::Remove()
{
    if (!std::exchange(m_isGone, true))
        static_cast<void>(m_files.Remove(m_page.Path));
}

bool ShownFile::Leave()
{
    if (std::exchange(m_isLeft, true))
        return false;
    m_page.Path = OwnPath(m_page.Path);
    return !std::exchange(m_isGone, true) && !FaultIn(Put());
}

} // namespace orvane
