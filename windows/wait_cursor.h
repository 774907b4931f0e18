#pragma once

#include <QApplication>

namespace orvane {

/// Shows the wait pointer for as long as it lives.
class WaitCursor
{
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace orvane
