#pragma once

#include "core/catalogue.h"
#include "core/workbench.h"

#include <QMainWindow>

#include <array>
#include <functional>

class QGridLayout;
class QLabel;
class QMenu;
class QStackedWidget;
class QTabBar;
class QToolButton;

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
    void AboutWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void AddMenus();
    QMenu* AddEffectMenu(QMenu* parent, const char* name, const char* caption, CataloguePage page);
    QAction* AddCommand(QMenu* menu, const char* name, const char* caption);
    void AddCatalogue(const std::function<bool(EffectKind)>& isBuilt);
    void AddButton(const CatalogueRow& row, bool isBuilt);
    void DrawPictures(int page);
    void Describe(const CatalogueRow* row);
    void CheckForUpdate();

    Workbench& m_bench;
    QTabBar* TabStrip1;
    QStackedWidget* m_pages;
    std::array<QGridLayout*, 3> m_grids{};
    QLabel* Label3;
    QLabel* Label2;
};

} // namespace orvane
