#pragma once

#include "effects/page/thought_bubbles.h"
#include "windows/effect_form.h"

#include <QPoint>

namespace orvane {

class PlacePicture;

/// The window of Thought Bubbles.
class ThoughtBubblesForm : public EffectForm<ThoughtBubbles>
{
public:
    explicit ThoughtBubblesForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void UpdateForm() override;

private:
    void AddPicturePage();
    void AddWordsPage();
    void AddLookPage();
    void TakePlace(QPoint place);

    PlacePicture* m_places;
    Text m_shown; ///< the picture's file
};

} // namespace orvane
