#pragma once

#include "core/text.h"

#include <optional>

namespace orvane {

/// The author's desktop, seen from outside the program.
class Shell
{
public:
    virtual ~Shell() = default;

    /// Opens a file or address with what the desktop has for it; a failure is ignored.
    virtual void OpenWithShell(TextView target) = 0;

    /// Starts a program with one argument, without a command interpreter in between, and brings its
    /// window up; false when it could not be started.
    [[nodiscard]] virtual bool Start(TextView program, TextView argument) = 0;

    /// The path of the desktop's default browser, if it tells one.
    virtual std::optional<Text> DefaultBrowser() = 0;
};

} // namespace orvane
