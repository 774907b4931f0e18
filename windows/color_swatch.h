#pragma once

#include "core/dialogs.h"
#include "services/color.h"

#include <QPushButton>

#include <cstdint>
#include <optional>

namespace orvane {

/// The field in which an author picks a colour: it shows a caption at first, then the colour
/// itself, which its accessible name and its tool tip say as well. A click, Enter or the space bar
/// opens the colour dialog; Delete, Backspace and the context menu take the colour away.
class ColorSwatch : public QPushButton
{
    Q_OBJECT

public:
    ColorSwatch(TextView caption, ColorNotation notation, Dialogs& dialogs,
                QWidget* parent = nullptr);

    /// The colour as the page writes it; empty when none was picked.
    const Text& Value() const { return m_value; }

    /// Takes a colour and shows it. The caption is shown instead when the text is empty or is no
    /// colour, and for a default that the author did not pick: in a field that writes "rgb(0,0,0)"
    /// that is any text beginning with "#".
    void SetValue(TextView value);

    /// Takes a colour without showing it: the field looks as before.
    void SetHiddenValue(TextView value) { m_value = value; }

    /// The colour that is shown, packed as CColor::RGBColor is; nothing while the caption is shown.
    std::optional<std::int32_t> Color() const { return m_color; }

    /// Takes the colour away: the field is as it was before the author picked one, with the value
    /// that it had then.
    void Unset();

    QSize sizeHint() const override;

signals:
    /// The author picked this colour, packed as Color() is; not sent on Cancel.
    void Picked(std::int32_t color);

    /// The author took the colour away.
    void WasUnset();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Pick();
    void Show(std::optional<std::int32_t> color);

    Dialogs& m_dialogs;
    const QString m_caption;
    const ColorNotation m_notation;
    Text m_value;
    Text m_unset;     ///< the value without a picked colour
    QString m_spoken; ///< what the colour adds to the accessible name
    QString m_tip;    ///< what it adds to the tool tip
    std::optional<std::int32_t> m_color;
};

} // namespace orvane
