#include "windows/wizard_form.h"

#include "core/catalogue.h"
#include "windows/qt_text.h"

#include <utility>

namespace orvane {

WizardForm::WizardForm(const QString& name, EffectKind kind, Workbench& bench, QWidget* parent)
    : WizardFrame(name, bench, parent)
{
    if (const CatalogueRow* row = FindRow(kind))
        setWindowTitle(ToQt(row->Title));
    SetHelpTopic(help_topics::firstEffect + static_cast<int>(kind));
    bench.Core.Required = {};
    bench.Core.RequiredFileCount = 0;
}

std::optional<EffectPayload> WizardForm::TakePayload()
{
    return std::exchange(m_payload, {});
}

void WizardForm::Deliver(EffectPayload payload)
{
    m_payload = std::move(payload);
    accept();
}

} // namespace orvane
