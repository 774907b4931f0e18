#pragma once

#include "effects/applet/image_effects.h"
#include "windows/effect_form.h"
#include "windows/key_choice.h"

#include <optional>

namespace orvane {

/// The window of Image Effects.
class ImageEffectsForm : public EffectForm<ImageEffects>
{
public:
    explicit ImageEffectsForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void UpdateForm() override;

private:
    void AddFields(PageBuilder& page);
    void AddModeFields(PageBuilder& page);
    void WidenSizeSlider();
    void Show(const ImageEffects& effects);
    void ShowMode(const ImageEffectsMode& mode);
    void ShowSizeSlider(const std::optional<EffectSlider>& slider);
    void TakeImage(const Text& path);

    KeyChoice m_keys;
    QWidget* m_properties = nullptr;
    FileNameBox* ImageFile = nullptr;
    QLineEdit* ImageWidth = nullptr;
    QLineEdit* ImageHeight = nullptr;
    QLineEdit* LinkOrColor = nullptr;
    orvane::ColorSwatch* ColorSwatch = nullptr;
    QComboBox* TargetFrame = nullptr;
    QLineEdit* FrameCount = nullptr;
    QCheckBox* chkGradual = nullptr;
    QSlider* SizeSlider = nullptr;
    QSlider* RotationSlider = nullptr;
};

} // namespace orvane
