#pragma once

#include "core/dialogs.h"
#include "core/settings.h"
#include "windows/text_line.h"

namespace orvane {

/// A text box for a file name: read-only unless the preferences unlock it. A key that would change
/// a locked box makes it tell the author to use Browse.
class FileNameBox : public TextLine
{
    Q_OBJECT

public:
    FileNameBox(const Settings& settings, Dialogs& dialogs, QWidget* parent = nullptr);

    /// Tells the box whether it is used for a file name at present; if not, it is never locked.
    void SetHoldsFile(bool holdsFile);

    /// Lets Delete and Backspace empty the box even where it is locked.
    void LetBeEmptied() { m_canBeEmptied = true; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const Settings& m_settings;
    Dialogs& m_dialogs;
    bool m_holdsFile = true;
    bool m_canBeEmptied = false;
};

} // namespace orvane
