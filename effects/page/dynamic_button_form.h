#pragma once

#include "effects/page/dynamic_button.h"
#include "windows/effect_form.h"

#include <vector>

namespace orvane {

class PictureBox;

/// The window of the Dynamic Button.
class DynamicButtonForm : public EffectForm<DynamicButton>
{
    Q_OBJECT

public:
    explicit DynamicButtonForm(Workbench& bench, QWidget* parent = nullptr);

    /// Ends the edit without reading the pasted tag: nothing of it comes back into the fields.
    void EditApplet() { m_bench.Core.EditMode = false; }

protected:
    void UpdateForm() override;

private:
    PageBuilder AddButtonPage(TextView frame, ControlName focus);
    void AddImage(PageBuilder& frame, ControlName name, TextView tip, std::size_t slot);
    void AddSound(PageBuilder& frame, ControlName name, TextView tip, std::size_t slot);
    void AddLink(PageBuilder& frame);

    struct Preview
    {
        std::size_t Slot;
        PictureBox* Box;
        Text Shown; ///< the file that was loaded last
    };
    std::vector<Preview> m_previews; ///< of the images, by their slots
};

} // namespace orvane
