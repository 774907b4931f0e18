#pragma once

#include "effects/applet/image_fade.h"
#include "windows/effect_form.h"

#include <vector>

namespace orvane {

class RowListPanel;

/// The window of Image Fade.
class ImageFadeForm : public EffectForm<ImageFade>
{
public:
    explicit ImageFadeForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void AddFields(PageBuilder& page);
    void AddImage();
    void AddImages(const std::vector<Text>& paths);
    void EditLink();

    /// Shows the fade in the controls; the selected row stays selected.
    void Show(const ImageFade& fade);

    RowListPanel* m_images;
    std::vector<ForgottenImage> m_forgotten; ///< of the removed rows, the last one last
};

} // namespace orvane
