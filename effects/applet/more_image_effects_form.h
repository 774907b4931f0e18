#pragma once

#include "effects/applet/more_image_effects.h"
#include "windows/effect_form.h"
#include "windows/key_choice.h"

namespace orvane {

/// The window of More Image Effects.
class MoreImageEffectsForm : public EffectForm<MoreImageEffects>
{
public:
    explicit MoreImageEffectsForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void UpdateForm() override;

private:
    void AddProperties(PageBuilder page);
    void AddBehavior(PageBuilder page);
    void ChooseEffect();
    void TakeImage(const Text& path);

    KeyChoice m_keys;
    FileNameBox* ImageFile = nullptr;
    QComboBox* PauseSeconds = nullptr;
    Text m_shownEffect;              ///< the effect whose rows were shown last
    std::optional<Text> m_pausesFor; ///< the loop count of its choice, until that changes
};

} // namespace orvane
