#pragma once

#include "services/chosen_effects.h"

#include <QWidget>

#include <functional>

class QLabel;

namespace orvane {

class EffectButton;
class EvenGrid;

/// Makes the button of an effect; whoever asked for it owns it.
using ButtonMaker = std::function<EffectButton*(const CatalogueRow&)>;

/// What a section says beside its effects.
struct SectionWords
{
    TextView Heading; ///< empty for none
    TextView Nothing; ///< said where there is no effect
};

/// Effects as buttons in an even grid, below their heading.
class EffectSection : public QWidget
{
public:
    EffectSection(const SectionWords& words, ButtonMaker make);

    /// Shows these effects in this order; the buttons of those that it showed before stay.
    void SetEffects(const EffectRows& effects);

private:
    ButtonMaker m_make;
    EvenGrid* m_grid;
    QLabel* m_nothing;
};

/// The button on the page to which an arrow key, Home or End leads from another, as they are shown;
/// null when there is none.
EffectButton* ButtonTowards(int key, const EffectButton& from, const QWidget& page);

} // namespace orvane
