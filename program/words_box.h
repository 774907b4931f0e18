#pragma once

#include "core/text.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QStyle>

class QLabel;
class QVBoxLayout;

namespace orvane {

/// A message box that shows its words as plain text, so that nothing in them, such as a file name
/// or a text of a page, is taken for markup. Words too long for the screen scroll; the controls and
/// buttons below them stay visible.
class WordsBox : public QDialog
{
public:
    /// Of `buttons`, Yes or OK is the default one.
    WordsBox(TextView words, TextView title, QDialogButtonBox::StandardButtons buttons,
             QWidget* parent);

    /// Shows an icon of the desktop's style to the left of the words.
    void ShowIcon(QStyle::StandardPixmap icon);

    /// The layout, between the words and the buttons, to which further controls can be added.
    QVBoxLayout& Below() { return *m_below; }

    /// The button that closed the box; NoButton when it was closed in another way.
    QDialogButtonBox::StandardButton Pressed() const { return m_pressed; }

private:
    void AddWords(TextView words);
    void AddButtons(QDialogButtonBox::StandardButtons buttons);

    QVBoxLayout* m_rows;
    QVBoxLayout* m_below;
    QLabel* m_icon;
    QDialogButtonBox::StandardButton m_pressed = QDialogButtonBox::NoButton;
};

} // namespace orvane
