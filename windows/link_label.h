#pragma once

#include "windows/controls.h"

#include <QLabel>

namespace orvane {

/// A label that a click or the keyboard follows like a link.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(ControlName name, TextView words, QWidget* parent = nullptr);

    void SetWords(TextView words);
    Text Words() const { return m_words; }

signals:
    void Followed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Text m_words;
};

} // namespace orvane
