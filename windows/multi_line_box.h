#pragma once

#include "core/text.h"

#include <QPlainTextEdit>

namespace orvane {

/// A box of several lines that keeps every character: where the toolkit would make a blank of a
/// no-break space and a line of a separator, this one gives back what went in. Lines end in CR LF.
class MultiLineBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

    Text Words() const;
    void SetWords(TextView words);

    /// A paste that would bring the box above so many characters is refused.
    static constexpr qsizetype mostCharacters = 4 * 1024 * 1024;

signals:
    /// A paste was refused; the box holds what it held.
    void TooLarge();

protected:
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;
};

} // namespace orvane
