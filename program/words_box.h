#pragma once

#include "core/text.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QStyle>

class QLabel;
class QVBoxLayout;

namespace orvane {

/// A box with words in plain text, so that no word of a page or a file name is read as markup.
/// Words that are too many for the screen scroll; what the author answers with stays in sight
/// below.
class WordsBox : public QDialog
{
public:
    WordsBox(TextView words, TextView title, QDialogButtonBox::StandardButtons buttons,
             QWidget* parent);

    void ShowIcon(QStyle::StandardPixmap icon);

    /// Where controls stand between the words and the buttons.
    QVBoxLayout& Below() { return *m_below; }

    /// The button that closed the box; none when it was closed in another way.
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
