#include "core/fault.h"

#include <cerrno>

namespace orvane {

TextView Words(Fault fault)
{
    switch (fault) {
    case Fault::InvalidProcedureCall:
        return u"Invalid procedure call or argument";
    case Fault::Overflow:
        return u"Overflow";
    case Fault::OutOfMemory:
        return u"Out of memory";
    case Fault::SubscriptOutOfRange:
        return u"Subscript out of range";
    case Fault::TypeMismatch:
        return u"Type mismatch";
    case Fault::BadFileName:
        return u"Bad file name or number";
    case Fault::FileNotFound:
        return u"File not found";
    case Fault::DeviceError:
        return u"Device I/O error";
    case Fault::DiskFull:
        return u"Disk full";
    case Fault::TooManyFiles:
        return u"Too many files";
    case Fault::PermissionDenied:
        return u"Permission denied";
    case Fault::PathFileAccess:
        return u"Path/File access error";
    case Fault::PathNotFound:
        return u"Path not found";
    case Fault::Cancelled:
        return u"Cancelled";
    }
    return u"Device I/O error";
}

Fault FaultOf(const std::error_code& error)
{
    const auto is = [&](std::errc code) { return error == std::make_error_condition(code); };
    if (is(std::errc::no_such_file_or_directory))
        return Fault::FileNotFound;
    if (is(std::errc::not_a_directory))
        return Fault::PathNotFound;
    if (is(std::errc::permission_denied) || is(std::errc::operation_not_permitted) ||
        is(std::errc::read_only_file_system) || is(std::errc::device_or_resource_busy) ||
        is(std::errc::text_file_busy) || is(std::errc::resource_unavailable_try_again))
        return Fault::PermissionDenied;
    if (is(std::errc::is_a_directory) || is(std::errc::file_exists))
        return Fault::PathFileAccess;
    if (is(std::errc::not_enough_memory))
        return Fault::OutOfMemory;
    if (is(std::errc::no_space_on_device) || error.value() == EDQUOT ||
        is(std::errc::file_too_large))
        return Fault::DiskFull;
    if (is(std::errc::too_many_files_open) || is(std::errc::too_many_files_open_in_system))
        return Fault::TooManyFiles;
    if (is(std::errc::filename_too_long) || is(std::errc::invalid_argument) ||
        is(std::errc::too_many_symbolic_link_levels))
        return Fault::BadFileName;
    return Fault::DeviceError;
}

} // namespace orvane
