#include "catalogue/catalogue_search_box.h"

#include <QKeyEvent>

namespace orvane {

CatalogueSearchBox::CatalogueSearchBox()
{
    setObjectName(QStringLiteral("txtSearch"));
    setPlaceholderText(QStringLiteral("Search (Ctrl+F)"));
    setAccessibleName(QStringLiteral("Search effects"));
    // Not before there are words to clear: its icon alone reads the desktop's icon themes.
    connect(this, &QLineEdit::textChanged, this, [this] { setClearButtonEnabled(true); });
    SetHintColor();
}

bool CatalogueSearchBox::BeginWith(const QKeyEvent& key)
{
    const bool isCommand =
        key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (isCommand || key.text().isEmpty() || !key.text().front().isLetterOrNumber())
        return false;
    setFocus();
    insert(key.text());
    return true;
}

void CatalogueSearchBox::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        SetHintColor();
}

/// Some desktops give dark windows the hint's colour of light ones.
void CatalogueSearchBox::SetHintColor()
{
    QPalette colors = palette();
    QColor hint = colors.color(QPalette::Text);
    hint.setAlphaF(0.7F);
    colors.setColor(QPalette::PlaceholderText, hint);
    setPalette(colors);
}

void CatalogueSearchBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit FirstWanted();
        break;
    case Qt::Key_Down:
        emit ListWanted();
        break;
    case Qt::Key_Escape:
        emit Left();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace orvane
