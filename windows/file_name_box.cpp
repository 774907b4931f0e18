#include "windows/file_name_box.h"

#include "core/orvane_core.h"

#include <QKeyEvent>

namespace orvane {

namespace {

bool Deletes(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace;
}

/// Whether the key would change the text of a box that is not locked.
bool Changes(const QKeyEvent& key)
{
    if (Deletes(key))
        return true;
    if (key.matches(QKeySequence::Paste) || key.matches(QKeySequence::Cut))
        return true;
    return !key.text().isEmpty() && key.text().at(0).isPrint();
}

} // namespace

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
    if (isReadOnly() && m_canBeEmptied && Deletes(*event))
        clear();
    else if (isReadOnly() && Changes(*event))
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
