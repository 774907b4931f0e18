#pragma once

#include "core/catalogue.h"
#include "windows/controls.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace orvane {

class EffectButton;
class LinkLabel;

/// The title and description of one effect of the catalogue, or words of welcome in their place;
/// beside both, the ways into the program.
class EffectDescription : public QWidget
{
public:
    EffectDescription();

    /// Shows the button's effect, or the welcome for null.
    void Show(const EffectButton* button);

    /// Adds a way, as a link; `tip` tells what else leads there.
    LinkLabel* AddWay(ControlName name, TextView words, TextView tip);

private:
    QLabel* Label3;
    QLabel* Label2;
    QLabel* m_greeting;
    QLabel* m_welcome;
    QHBoxLayout* m_ways;
};

} // namespace orvane
