#include "windows/file_name_box.h"

#include "core/orvane_core.h"

#include <QKeyEvent>

namespace orvane {

FileNameBox::FileNameBox(const Settings& settings, Dialogs& dialogs, QWidget* parent)
    : TextLine(parent), m_settings(settings), m_dialogs(dialogs)
{
}

void FileNameBox::SetHoldsFile(bool holdsFile)
{
    m_holdsFile = holdsFile;
    setReadOnly(holdsFile && !AreInputBoxesUnlocked(m_settings));
}

void FileNameBox::keyPressEvent(QKeyEvent* event)
{
    const bool types = !event->text().isEmpty() && event->text().at(0).isPrint();
    if (isReadOnly() && types)
        WarnInputBoxLocked(m_settings, m_dialogs);
    else
        TextLine::keyPressEvent(event);
}

void FileNameBox::showEvent(QShowEvent* event)
{
    SetHoldsFile(m_holdsFile);
    TextLine::showEvent(event);
}

} // namespace orvane
