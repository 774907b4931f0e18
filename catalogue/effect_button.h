#pragma once

#include "core/catalogue.h"

#include <QToolButton>

namespace orvane {

/// What the catalogue says about an effect without a wizard.
inline constexpr TextView notYetAvailable = u"Not available yet: this effect has no wizard so far.";

/// An effect as a picture with its title. One without a wizard is drawn in grey, and says so when
/// it is pressed; one of the author's favorites has a star.
class EffectButton : public QToolButton
{
    Q_OBJECT

public:
    /// `name` is the object name; `row` must outlive the button.
    EffectButton(const CatalogueRow& row, bool hasWizard, const QString& name);

    const CatalogueRow& Row() const { return m_row; }
    bool HasWizard() const { return m_hasWizard; }
    bool IsFavorite() const { return m_isFavorite; }
    /// Shows or removes the star.
    void SetFavorite(bool isFavorite);

    /// Loads the picture, unless it is there. The button has its full size without it too.
    void DrawPicture();

    QSize sizeHint() const override;

signals:
    /// The author clicked the button of an effect that has a wizard.
    void EffectWanted(orvane::EffectKind kind);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Open();
    void Describe();

    const CatalogueRow& m_row;
    bool m_hasWizard;
    bool m_isFavorite = false;
};

} // namespace orvane
