#pragma once

#include "program/cli_world.h"

#include <span>
#include <string>

namespace orvane {

/// Runs the command line program with these words, without its own name. Gives
/// its exit code.
CliExit RunCli(std::span<const std::string> words, CliWorld& world);

} // namespace orvane
