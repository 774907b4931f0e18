#include "windows/multi_line_box.h"

#include "windows/qt_text.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>

namespace orvane {

namespace {

/// Stands in the document for a paragraph separator, which would end a line there. It is no
/// character of any text.
constexpr QChar separatorStandIn(0xFDD2);

/// Whether so many characters stand between two places where a line may be broken.
bool HasLongWord(QStringView text)
{
    constexpr int longest = 1000;
    int letters = 0;
    for (const QChar c : text) {
        letters = c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' ? 0 : letters + 1;
        if (letters > longest)
            return true;
    }
    return false;
}

QString ToDocument(QString text)
{
    return text.replace(QChar::ParagraphSeparator, separatorStandIn);
}

/// Expects the document's own characters, in which a paragraph separator ends a line.
QString FromDocument(QString raw)
{
    return raw.replace(QChar::ParagraphSeparator, QLatin1String("\r\n"))
        .replace(separatorStandIn, QChar::ParagraphSeparator);
}

} // namespace

MultiLineBox::MultiLineBox(QWidget* parent) : QPlainTextEdit(parent)
{
    // The document tells this before it breaks the changed lines.
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int place, int, int added) { WatchWords(place, added); });
}

/// The toolkit's time for a word grows with the square of its length: minutes for a megabyte.
void MultiLineBox::WatchWords(int place, int added)
{
    const auto end = document()->findBlock(place + added).next();
    for (auto line = document()->findBlock(place); line != end; line = line.next())
        if (wordWrapMode() != QTextOption::WrapAnywhere && HasLongWord(line.text()))
            setWordWrapMode(QTextOption::WrapAnywhere);
}

Text MultiLineBox::Words() const
{
    return FromQt(FromDocument(document()->toRawText()));
}

void MultiLineBox::SetWords(TextView words)
{
    const QString text = ToDocument(ToQt(words));
    setPlainText(text);
    if (!HasLongWord(text))
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

QMimeData* MultiLineBox::createMimeDataFromSelection() const
{
    auto* selection = new QMimeData;
    selection->setText(FromDocument(textCursor().selectedText()));
    return selection;
}

void MultiLineBox::insertFromMimeData(const QMimeData* source)
{
    const QString text = source->text();
    if (text.size() > mostCharacters - document()->characterCount())
        return emit TooLarge();
    textCursor().insertText(ToDocument(text));
    ensureCursorVisible();
}

} // namespace orvane
