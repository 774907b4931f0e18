#pragma once

#include "core/catalogue.h"

#include <QIcon>
#include <QToolButton>

namespace orvane {

/// An effect as a picture of it at work, with its title; one of the author's favorites has a star.
class EffectButton : public QToolButton
{
    Q_OBJECT

public:
    /// `name` is the object name; `row` must outlive the button.
    EffectButton(const CatalogueRow& row, const QString& name);

    const CatalogueRow& Row() const { return m_row; }
    bool IsFavorite() const { return m_isFavorite; }
    /// Shows or removes the star.
    void SetFavorite(bool isFavorite);

    /// Loads the picture, unless it is there. The button has its full size without it too.
    void DrawPicture();

    /// Shows a frame of the moving picture in place of the picture.
    void ShowFrame(const QImage& frame);
    /// Shows the picture again.
    void ShowStill();

    QSize sizeHint() const override;

signals:
    /// The author clicked the button.
    void EffectWanted(orvane::EffectKind kind);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Describe();

    const CatalogueRow& m_row;
    QIcon m_still; ///< null until the picture is loaded
    bool m_isFavorite = false;
};

} // namespace orvane
