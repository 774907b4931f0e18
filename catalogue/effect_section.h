#pragma once

#include "services/chosen_effects.h"

#include <QWidget>

#include <functional>

class QLabel;

namespace orvane {

class EffectButton;
class EvenGrid;

/// Makes the button of an effect; the caller owns it.
using ButtonMaker = std::function<EffectButton*(const CatalogueRow&)>;

/// The words of a section.
struct SectionWords
{
    TextView Heading; ///< above the effects; empty for none
    TextView Nothing; ///< shown in place of the effects when there are none
};

/// Effects as buttons in an even grid, below their heading.
class EffectSection : public QWidget
{
public:
    EffectSection(const SectionWords& words, ButtonMaker make);

    /// Shows these effects in this order. An effect that was shown before keeps its button; the
    /// buttons of all others are deleted.
    void SetEffects(const EffectRows& effects);

private:
    ButtonMaker m_make;
    EvenGrid* m_grid;
    QLabel* m_nothing;
};

/// The visible button of the page that an arrow key, Home or End leads to from the button `from`;
/// null when there is none. Expects `from` to be visible on the page.
EffectButton* ButtonTowards(int key, const EffectButton& from, const QWidget& page);

} // namespace orvane
