#pragma once

#include "effects/page/search_box.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Search Box and of the Web Page Translator.
class SearchBoxForm : public EffectForm<SearchBox>
{
    Q_OBJECT

public:
    /// Shows the window of that kind.
    explicit SearchBoxForm(Workbench& bench, QWidget* parent = nullptr,
                           EffectKind kind = EffectKind::SearchBox);

    /// The cursor stands behind the "http://", which is not selected.
    void setVisible(bool isVisible) override;

private:
    QLineEdit* txtTranslateURL;
};

} // namespace orvane
