#pragma once

#include "core/workbench.h"

#include <QDialog>

namespace orvane {

/// Says what the program is and which version runs.
class AboutForm : public QDialog
{
    Q_OBJECT

public:
    explicit AboutForm(Workbench& bench, QWidget* parent = nullptr);
};

/// The window that opens in place of the main window when the author wants to download another
/// browser, or the version for another one, first. Closing it ends the program.
class DownloadForm : public QDialog
{
    Q_OBJECT

public:
    explicit DownloadForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
