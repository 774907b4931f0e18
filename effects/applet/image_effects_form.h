#pragma once

#include "effects/applet/image_effects.h"
#include "windows/effect_form.h"
#include "windows/key_choice.h"

namespace orvane {

/// The window of Image Effects.
class ImageEffectsForm : public EffectForm<ImageEffects>
{
public:
    explicit ImageEffectsForm(Workbench& bench, QWidget* parent = nullptr);

    /// The focus stands on the image once an effect is chosen.
    void Open(const Opening& opening) override;

protected:
    void UpdateForm() override;

private:
    void AddFields(PageBuilder& page);
    void AddModeFields(PageBuilder& page);
    void WidenSizeSlider();
    void Show(const ImageEffects& effects);
    void TakeImage(const Text& path);

    KeyChoice m_keys;
    FileNameBox* ImageFile = nullptr;
    QSlider* SizeSlider = nullptr;
};

} // namespace orvane
