#pragma once

#include "core/catalogue.h"

#include <QWidget>

class QLabel;

namespace orvane {

class EffectButton;

/// The title and description of one effect of the catalogue, or words of welcome in their place.
class EffectDescription : public QWidget
{
public:
    EffectDescription();

    /// Shows the button's effect, or the welcome for null.
    void Show(const EffectButton* button);

private:
    QLabel* Label3;
    QLabel* Label2;
    QLabel* m_greeting;
    QLabel* m_welcome;
};

} // namespace orvane
