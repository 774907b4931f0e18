#pragma once

#include "core/catalogue.h"
#include "core/workbench.h"

#include <QMainWindow>

class QAction;
class QMenu;

namespace orvane {

class CataloguePanel;

/// The main window: the catalogue of effects, and menus with the same effects and all other
/// commands.
class OVMainForm : public QMainWindow
{
    Q_OBJECT

public:
    explicit OVMainForm(Workbench& bench);

signals:
    /// The author chose an effect in the catalogue or in a menu.
    void EffectWanted(orvane::EffectKind kind);
    void EditAppletWanted();
    void PreferencesWanted();
    void BringBackWanted();
    /// The author wants to open the recipe with this full path; empty for one that is to be picked.
    void RecipeWanted(const orvane::Text& path);
    /// The author wants to see the effects on the page with this full path; empty for no page yet.
    void PageEffectsWanted(const orvane::Text& page);
    /// The author wants to see every effect at work.
    void AllEffectsWanted();
    void AboutWanted();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AddMenus();
    void AddWays(CataloguePanel& catalogue);
    void AddEffects(QMenu& menu, CataloguePage page);
    void OpenBy(const EffectCommand& command);
    void CheckForUpdate();

    Workbench& m_bench;
    QAction* m_pageEffects = nullptr;
    QAction* m_allEffects = nullptr;
};

} // namespace orvane
