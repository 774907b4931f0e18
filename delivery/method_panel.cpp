#include "delivery/method_panel.h"

#include "windows/page_builder.h"

#include <QRadioButton>

namespace orvane {

MethodPanel::MethodPanel()
{
    PageBuilder page(this);
    for (std::size_t i = 0; i < insertModes.size(); ++i)
        optInsertMode[i] = page.Option("optInsertMode", static_cast<int>(i), insertModes[i].Caption,
                                       insertModes[i].Explanation);
    Choose(InsertMode::AutoInsert);
    page.Fill();
}

void MethodPanel::PageShown()
{
    optInsertMode[static_cast<std::size_t>(Mode())]->setFocus();
}

InsertMode MethodPanel::Mode() const
{
    for (std::size_t i = 0; i < optInsertMode.size(); ++i)
        if (optInsertMode[i]->isChecked())
            return static_cast<InsertMode>(i);
    return InsertMode::AutoInsert;
}

void MethodPanel::Choose(InsertMode mode)
{
    optInsertMode[static_cast<std::size_t>(mode)]->setChecked(true);
}

} // namespace orvane
