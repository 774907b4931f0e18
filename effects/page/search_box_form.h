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

protected:
    void UpdateForm() override;

private:
    QWidget* frameSearch;
    QLineEdit* txtURL;
    QWidget* frameTranslate;
};

} // namespace orvane
