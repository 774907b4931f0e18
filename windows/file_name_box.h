#pragma once

#include "core/dialogs.h"
#include "core/settings.h"
#include "windows/text_line.h"

namespace orvane {

/// A file field: locked against typing unless the preferences unlock it; a key typed into a locked
/// one tells the author to use Browse.
class FileNameBox : public TextLine
{
    Q_OBJECT

public:
    FileNameBox(const Settings& settings, Dialogs& dialogs, QWidget* parent = nullptr);

    /// Whether the field holds a file name at present; one that does not may be typed into.
    void SetHoldsFile(bool holdsFile);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const Settings& m_settings;
    Dialogs& m_dialogs;
    bool m_holdsFile = true;
};

} // namespace orvane
