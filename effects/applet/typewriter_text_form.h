#pragma once

#include "effects/applet/typewriter_text.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of Typewriter Text.
class TypewriterTextForm : public EffectForm<TypewriterText>
{
public:
    explicit TypewriterTextForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void AddTextPage();
    void AddFontPage();
    void AddPropertiesPage();
    void WatchSize(QWidget* box);
    void TellSize(QWidget* box);

    QComboBox* FontSize = nullptr;
};

} // namespace orvane
