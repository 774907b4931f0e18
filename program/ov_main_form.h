#pragma once

#include "core/catalogue.h"
#include "core/workbench.h"

#include <QMainWindow>

#include <functional>

class QMenu;

namespace orvane {

/// The catalogue of effects, and the menus that reach the same effects by name.
class OVMainForm : public QMainWindow
{
    Q_OBJECT

public:
    /// `isBuilt` tells which effects have a wizard; the commands of the others are disabled.
    OVMainForm(Workbench& bench, const std::function<bool(EffectKind)>& isBuilt);

signals:
    void EffectWanted(const orvane::EffectCommand& command);
    void EditAppletWanted();
    void PreferencesWanted();
    void BringBackWanted();
    void AboutWanted();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void AddMenus();
    void AddEffects(QMenu& menu, CataloguePage page);
    void CheckForUpdate();

    Workbench& m_bench;
};

} // namespace orvane
