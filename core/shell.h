#pragma once

#include "core/text.h"

#include <optional>

namespace orvane {

/// What the program needs of the author's desktop.
class Shell
{
public:
    virtual ~Shell() = default;

    /// Opens a file or address with the program that the desktop has for it; a failure is ignored.
    virtual void OpenWithShell(TextView target) = 0;

    /// Starts a program with one argument, without a command interpreter; false when it could not
    /// be started. The program itself brings its window to the front.
    [[nodiscard]] virtual bool Start(TextView program, TextView argument) = 0;

    /// The full path of the desktop's default browser; nothing when the desktop names none.
    virtual std::optional<Text> DefaultBrowser() = 0;
};

} // namespace orvane
