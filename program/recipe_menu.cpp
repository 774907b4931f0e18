#include "program/recipe_menu.h"

#include "core/catalogue.h"
#include "program/recipe_files.h"
#include "windows/wizard_form.h"

#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

#include <memory>
#include <utility>

namespace orvane {

namespace {

/// The fields as the wizard shows them, without the secret ones.
AnyEffect EffectOf(const WizardForm& wizard)
{
    AnyEffect effect = *AnyEffect::Fresh(wizard.Kind());
    effect.ReadDraft(wizard.Fields());
    return effect;
}

/// Whether the two are made in one wizard.
bool AreOfOneWindow(EffectKind one, EffectKind other)
{
    return RowOf(one).Form == RowOf(other).Form;
}

} // namespace

void AddRecipeMenu(WizardForm& wizard, Workbench& bench,
                   std::function<void(AnyEffect effect)> openOther)
{
    QPushButton* button = MakeButton("cmdMenu", u"Men&u", u"Keeps what you entered in a file");
    button->setAutoDefault(false);
    auto* menu = new QMenu(button);
    menu->setObjectName(QStringLiteral("mnuRecipe"));
    const auto path = std::make_shared<Text>();
    const auto add = [&](ControlName name, TextView caption, auto run) {
        QObject::connect(AddCommand(*menu, name, caption), &QAction::triggered, &wizard, run);
    };
    add("mnuSaveAsRecipe", u"&Save as recipe...", [&wizard, &bench, path] {
        const auto saved = SaveAsRecipe(bench, EffectOf(wizard), *path);
        if (!saved)
            return;
        *path = *saved;
        wizard.Tell(u"Saved");
    });
    add("mnuOpenRecipe", u"&Open recipe...", [&wizard, &bench, openOther = std::move(openOther)] {
        auto effect = OpenRecipe(bench);
        if (!effect)
            return;
        if (AreOfOneWindow(effect->Kind(), wizard.Kind()))
            return wizard.Open(Recipe{effect->Draft()});
        if (openOther)
            return openOther(*std::move(effect));
        bench.Dialogs.Say(Join({u"This recipe is of another special effect, \"",
                                RowOf(effect->Kind()).Title, u"\"."}));
    });
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] {
        // Opened by a key, it waits for a key: Enter takes the first row.
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            QTimer::singleShot(0, menu, [menu] { menu->setActiveAction(menu->actions().front()); });
    });
    button->setMenu(menu);
    wizard.AddBesideHelp(button);
}

} // namespace orvane
