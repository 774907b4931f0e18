#include "disk/unwritten_files.h"

namespace orvane {

const std::optional<std::string>* UnwrittenFiles::ChangeOf(TextView path) const
{
    const auto found = m_changes.find(Text(path));
    return found == m_changes.end() ? nullptr : &found->second;
}

bool UnwrittenFiles::FileExists(TextView path) const
{
    const auto* change = ChangeOf(path);
    return change ? change->has_value() : m_files.FileExists(path);
}

bool UnwrittenFiles::IsTaken(TextView path) const
{
    const auto* change = ChangeOf(path);
    return change ? change->has_value() : m_files.IsTaken(path);
}

Outcome<bool> UnwrittenFiles::IsCopyOf(TextView path, TextView other, std::string_view bytes) const
{
    if (const auto* change = ChangeOf(path))
        return path != other && *change == bytes;
    return m_files.IsCopyOf(path, other, bytes);
}

std::optional<FileFacts> UnwrittenFiles::Facts(TextView path) const
{
    const auto* change = ChangeOf(path);
    if (change == nullptr)
        return m_files.Facts(path);
    if (!*change)
        return std::nullopt;
    return FileFacts{.Size = (*change)->size()};
}

Outcome<std::string> UnwrittenFiles::Read(TextView path) const
{
    const auto* change = ChangeOf(path);
    if (change == nullptr)
        return m_files.Read(path);
    if (!*change)
        return Fault::FileNotFound;
    return **change;
}

Outcome<std::string> UnwrittenFiles::ReadItself(TextView path) const
{
    return ChangeOf(path) ? Read(path) : m_files.ReadItself(path);
}

Done UnwrittenFiles::Replace(TextView path, std::string_view bytes)
{
    m_changes[Text(path)] = std::string(bytes);
    return {};
}

Outcome<bool> UnwrittenFiles::Exchange(TextView path, std::string_view old, std::string_view bytes,
                                       std::string_view rest)
{
    const auto present = Read(path);
    if (const Fault* fault = FaultIn(present))
        return *fault;
    if (ValueIn(present) != old)
        return false;
    m_changes[Text(path)] = Join({bytes, rest});
    return true;
}

Done UnwrittenFiles::PutNew(TextView path, std::string_view bytes, TextView)
{
    return Replace(path, bytes);
}

Done UnwrittenFiles::PutPrivate(TextView path, std::string_view bytes)
{
    return Replace(path, bytes);
}

Outcome<bool> UnwrittenFiles::PutIfFree(TextView path, std::string_view bytes, TextView)
{
    if (IsTaken(path))
        return false;
    m_changes[Text(path)] = std::string(bytes);
    return true;
}

Done UnwrittenFiles::Copy(TextView from, TextView to, Progress*)
{
    auto bytes = Read(from);
    if (const Fault* fault = FaultIn(bytes))
        return *fault;
    m_changes[Text(to)] = std::get<std::string>(std::move(bytes));
    return {};
}

Done UnwrittenFiles::Remove(TextView path)
{
    if (!IsTaken(path))
        return Fault::FileNotFound;
    m_changes[Text(path)] = std::nullopt;
    return {};
}

} // namespace orvane
