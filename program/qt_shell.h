#pragma once

#include "core/clipboard.h"
#include "core/shell.h"

namespace orvane {

/// Opens files and starts programs on the desktop, by the toolkit.
class QtShell : public Shell
{
public:
    void OpenWithShell(TextView target) override;
    bool Start(TextView program, TextView argument) override;
    std::optional<Text> DefaultBrowser() override;
};

/// The desktop's clipboard.
class QtClipboard : public Clipboard
{
public:
    void Put(TextView text) override;
};

} // namespace orvane
