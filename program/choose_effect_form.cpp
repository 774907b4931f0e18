#include "program/choose_effect_form.h"

#include "catalogue/catalogue_panel.h"
#include "windows/controls.h"
#include "windows/remember_place.h"

#include <QVBoxLayout>

namespace orvane {

ChooseEffectForm::ChooseEffectForm(Workbench& bench, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("ChooseEffect"));
    setWindowTitle(QStringLiteral("Add an effect"));
    auto* catalogue = new CataloguePanel(bench.Settings);
    connect(catalogue, &CataloguePanel::EffectWanted, this, [this](EffectKind kind) {
        m_chosen = kind;
        accept();
    });
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(catalogue);
    RememberPlace(*this, bench.Settings);
    OpenHelpOnF1(this, bench.Help, help_topics::mainWindow);
}

} // namespace orvane
