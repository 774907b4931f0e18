#include "delivery/delivery_report.h"

#include "core/file_names.h"
#include "services/add_once.h"

#include <algorithm>

namespace orvane {

void DeliveryReport::PageWritten(TextView path)
{
    AddOnce(m_pages, path);
    std::erase(m_broughtBack, path);
    m_page = path;
    m_folder = FolderOf(path);
}

void DeliveryReport::PagePublished(TextView path)
{
    AddOnce(m_published, path);
    m_folder = FolderOf(path);
}

void DeliveryReport::PageBroughtBack(TextView path, bool holdsEffect)
{
    if (!holdsEffect)
        std::erase(m_pages, path);
    AddOnce(m_broughtBack, path);
}

void DeliveryReport::CodeCopied(TextView part)
{
    AddOnce(m_parts, part);
}

void DeliveryReport::FileCopied(TextView folder)
{
    m_folder = WithSeparator(folder);
}

bool DeliveryReport::HasCopiedCode() const
{
    return std::ranges::any_of(m_parts, [](const Text& part) { return part != pageScriptPart; });
}

} // namespace orvane
