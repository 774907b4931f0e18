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
    void KeepSize();

    RowListPanel* m_images;
    QLineEdit* FadeWidth;
    QLineEdit* FadeHeight;
    QString m_width; ///< of the images while none is left, for those that are put back
    QString m_height;
};

} // namespace orvane
