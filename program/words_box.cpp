#include "program/words_box.h"

#include "windows/qt_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

WordsBox::WordsBox(TextView words, TextView title, QDialogButtonBox::StandardButtons buttons,
                   QWidget* parent)
    : QDialog(parent), m_rows(new QVBoxLayout(this)), m_below(new QVBoxLayout), m_icon(new QLabel)
{
    setWindowTitle(ToQt(title));
    setAccessibleDescription(ToQt(words));
    AddWords(words);
    m_rows->addLayout(m_below);
    AddButtons(buttons);
}

void WordsBox::AddWords(TextView words)
{
    auto* label = new QLabel(ToQtLines(words));
    label->setObjectName("lblWords");
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* scroll = new QScrollArea;
    scroll->setWidget(label);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setObjectName("Words");
    scroll->setAccessibleName("Message");

    // As wide as the longest line and as high as all lines, within the screen.
    const QSize room = screen()->availableSize();
    const int letter = fontMetrics().averageCharWidth();
    const int lineWidth = fontMetrics().size(0, label->text()).width();
    const int width = std::clamp(lineWidth, 40 * letter, std::min(90 * letter, room.width() / 2));
    const int height = label->heightForWidth(width);
    const bool fits = height <= room.height() / 2;
    scroll->setFocusPolicy(fits ? Qt::NoFocus : Qt::StrongFocus);
    scroll->setMinimumSize(width + (fits ? 0 : scroll->verticalScrollBar()->sizeHint().width()),
                           fits ? height : room.height() / 2);

    auto* row = new QHBoxLayout;
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addWidget(scroll, 1);
    m_rows->addLayout(row, 1);
    m_icon->hide();
}

void WordsBox::AddButtons(QDialogButtonBox::StandardButtons buttons)
{
    auto* row = new QDialogButtonBox(buttons);
    m_rows->addWidget(row);
    connect(row, &QDialogButtonBox::clicked, this, [this, row](QAbstractButton* button) {
        m_pressed = row->standardButton(button);
        done(m_pressed == QDialogButtonBox::Cancel ? Rejected : Accepted);
    });
    const std::pair<QDialogButtonBox::StandardButton, const char*> names[] = {
        {QDialogButtonBox::Cancel, "cmdCancel"},
        {QDialogButtonBox::No, "cmdNo"},
        {QDialogButtonBox::Yes, "cmdYes"},
        {QDialogButtonBox::Ok, "cmdOK"},
    };
    for (const auto& [which, name] : names)
        if (QPushButton* button = row->button(which)) {
            button->setObjectName(name);
            // The last that is there: the answer that agrees.
            button->setDefault(true);
            button->setFocus();
        }
}

void WordsBox::ShowIcon(QStyle::StandardPixmap icon)
{
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize);
    m_icon->setPixmap(style()->standardIcon(icon).pixmap(size));
    m_icon->show();
}

} // namespace orvane
