#include "disk/recovery_copy.h"

#include <algorithm>
#include <charconv>

namespace orvane {

namespace {

constexpr std::string_view pathSign = "Orvane recovery copy: ";
constexpr std::string_view oldSign = " bytes of path, ";
constexpr std::string_view newSign = " of old content, ";
constexpr std::string_view endSign = " of new content\n";

/// Takes `sign` and the number behind it off the front of `bytes`; nothing when they differ.
std::optional<std::size_t> TakeNumber(std::string_view& bytes, std::string_view sign)
{
    if (!bytes.starts_with(sign))
        return std::nullopt;
    bytes.remove_prefix(sign.size());
    std::size_t number = 0;
    const auto [rest, error] = std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
    if (error != std::errc())
        return std::nullopt;
    bytes.remove_prefix(static_cast<std::size_t>(rest - bytes.data()));
    return number;
}

/// Takes `size` bytes off the front; fewer when there are no more.
std::string_view TakeBytes(std::string_view& bytes, std::size_t size)
{
    const std::string_view taken = bytes.substr(0, size);
    bytes.remove_prefix(taken.size());
    return taken;
}

} // namespace

std::string WriteRecoveryCopy(const RecoveryCopy& copy)
{
    std::string bytes(pathSign);
    bytes.reserve(copy.Path.size() + copy.Old.size() + copy.New.size() + 128);
    bytes += std::to_string(copy.Path.size());
    bytes += oldSign;
    bytes += std::to_string(copy.Old.size());
    bytes += newSign;
    bytes += std::to_string(copy.New.size());
    bytes += endSign;
    bytes.append(copy.Path).append(copy.Old).append(copy.New);
    return bytes;
}

std::optional<RecoveryCopy> ReadRecoveryCopy(std::string_view bytes)
{
    const auto pathSize = TakeNumber(bytes, pathSign);
    const auto oldSize = pathSize ? TakeNumber(bytes, oldSign) : std::nullopt;
    const auto newSize = oldSize ? TakeNumber(bytes, newSign) : std::nullopt;
    if (!newSize || !bytes.starts_with(endSign))
        return std::nullopt;
    bytes.remove_prefix(endSign.size());
    RecoveryCopy copy;
    copy.Path = TakeBytes(bytes, *pathSize);
    copy.Old = TakeBytes(bytes, *oldSize);
    copy.New = TakeBytes(bytes, *newSize);
    const bool isWhole = copy.Path.size() == *pathSize && copy.Old.size() == *oldSize &&
                         copy.New.size() == *newSize && bytes.empty();
    return isWhole ? std::optional(copy) : std::nullopt;
}

bool IsHalfWritten(std::string_view content, const RecoveryCopy& copy)
{
    if (content.size() < std::min(copy.Old.size(), copy.New.size()) ||
        content.size() > std::max(copy.Old.size(), copy.New.size()))
        return false;
    for (std::size_t i = 0; i < content.size(); ++i) {
        const bool isOld = i < copy.Old.size() && content[i] == copy.Old[i];
        const bool isNew = i < copy.New.size() && content[i] == copy.New[i];
        const bool isGap = i >= copy.Old.size() && content[i] == '\0';
        if (!isOld && !isNew && !isGap)
            return false;
    }
    return true;
}

} // namespace orvane
