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

/// The window that opens instead of the main one when the author wants another browser first.
class DownloadForm : public QDialog
{
    Q_OBJECT

public:
    explicit DownloadForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
