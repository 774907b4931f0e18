#pragma once

#include "effects/page/slideshow.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Slideshow.
class SlideshowForm : public EffectForm<Slideshow>
{
    Q_OBJECT

public:
    explicit SlideshowForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void Next() override;
    void Previous() override;

private:
    void AddImagePage();
    void AddPropertiesPage();
    void KeepMoving(ControlName unticked);

    QLineEdit* txtSlideDuration;
};

} // namespace orvane
