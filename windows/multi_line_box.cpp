#include "windows/multi_line_box.h"

#include "windows/qt_text.h"

#include <QMimeData>
#include <QTextDocument>

namespace orvane {

namespace {

/// Stands in the document for a paragraph separator, which would end a line there. It is no
/// character of any text.
constexpr QChar separatorStandIn(0xFDD2);

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

Text MultiLineBox::Words() const
{
    return FromQt(FromDocument(document()->toRawText()));
}

void MultiLineBox::SetWords(TextView words)
{
    setPlainText(ToDocument(ToQt(words)));
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
