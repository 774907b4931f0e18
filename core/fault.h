#pragma once

#include "core/text.h"

#include <system_error>
#include <variant>

namespace orvane {

/// What can go wrong while a command runs, under the numbers and words that the author knows.
enum class Fault
{
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    Cancelled = 32755, ///< the author cancelled the work
};

/// The fault's words for a message box, such as "Permission denied".
TextView Words(Fault fault);

/// The fault for a failed call of the operating system; DeviceError when no other fault fits. A
/// missing file is FileNotFound even when its folder is missing too: the caller tells the two
/// apart.
Fault FaultOf(const std::error_code& error);

/// A value, or the fault that prevented it.
template <class Value>
using Outcome = std::variant<Value, Fault>;

/// The outcome of a command that gives no value.
using Done = Outcome<std::monostate>;

/// The fault of an outcome, or null when it holds its value.
template <class Value>
const Fault* FaultIn(const Outcome<Value>& outcome)
{
    return std::get_if<Fault>(&outcome);
}

/// The value of an outcome that is known to hold one; throws std::bad_variant_access otherwise.
template <class Value>
const Value& ValueIn(const Outcome<Value>& outcome)
{
    return std::get<Value>(outcome);
}

} // namespace orvane
