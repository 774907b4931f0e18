#pragma once

#include "core/text.h"

#include <QPlainTextEdit>

namespace orvane {

/// A text box of several lines that keeps every character: the toolkit's own box would turn a
/// no-break space into a blank, and a paragraph separator into a line end. Once a word is too long
/// for the toolkit to look for places to break it, lines are broken anywhere.
class MultiLineBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit MultiLineBox(QWidget* parent = nullptr);

    /// The text; its lines end in CR LF, whatever ended them in SetWords().
    Text Words() const;

    /// Shows another text, of any length.
    void SetWords(TextView words);

    /// A paste that would bring the box above this number of characters is refused.
    static constexpr qsizetype mostCharacters = 4 * 1024 * 1024;

signals:
    /// A paste was refused; the box holds what it held.
    void TooLarge();

protected:
    QMimeData* createMimeDataFromSelection() const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    void WatchWords(int place, int added);
};

} // namespace orvane
