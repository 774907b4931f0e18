#pragma once

#include "core/dialogs.h"

#include <QPushButton>

#include <cstdint>
#include <optional>

namespace orvane {

/// The field in which an author picks a colour: it shows a caption at first, then the colour
/// itself. A click, Enter or a blank opens the colour dialog.
class ColorSwatch : public QPushButton
{
    Q_OBJECT

public:
    ColorSwatch(TextView caption, Dialogs& dialogs, QWidget* parent = nullptr);

    /// Shows a packed colour, as CColor::RGBColor is, or the caption when there is none.
    void SetColor(std::optional<std::int32_t> color);
    std::optional<std::int32_t> Color() const { return m_color; }

    QSize sizeHint() const override;

signals:
    /// The author picked this packed colour; Cancel is silent.
    void Picked(std::int32_t color);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Pick();

    Dialogs& m_dialogs;
    QString m_caption;
    std::optional<std::int32_t> m_color;
};

} // namespace orvane
