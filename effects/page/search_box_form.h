#pragma once

#include "effects/page/search_box.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Search Box and of the Web Page Translator.
class SearchBoxForm : public EffectForm<SearchBox>
{
    Q_OBJECT

public:
    /// Shows the window in that mode.
    explicit SearchBoxForm(Workbench& bench, QWidget* parent = nullptr, TextView mode = searchMode);

    /// The cursor stands behind the "http://", which is not selected.
    void setVisible(bool isVisible) override;

protected:
    SearchBox Fresh() const override;
    void UpdateForm() override;
    EffectPayload Produce(const SearchBox& box) const override;

private:
    const TextView m_mode;
    QWidget* frameSearch;
    QLineEdit* txtURL;
    QWidget* frameTranslate;
    QLineEdit* txtTranslateURL;
};

} // namespace orvane
