#pragma once

#include "core/catalogue.h"

#include <QWidget>

#include <array>
#include <functional>

class QGridLayout;
class QKeySequence;
class QLabel;
class QScrollArea;
class QStackedWidget;
class QTabBar;

namespace orvane {

/// All effects as pictures on three tabs, and the title and description of the one that is pointed
/// at.
class CataloguePanel : public QWidget
{
    Q_OBJECT

public:
    /// `isBuilt` tells which effects have a wizard; the buttons of the others are disabled.
    explicit CataloguePanel(const std::function<bool(EffectKind)>& isBuilt);

    /// Room for every picture of the fullest page.
    QSize sizeHint() const override;

signals:
    void EffectWanted(const orvane::EffectCommand& command);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddPages();
    void AddDescription();
    void AddKey(const QKeySequence& keys, int step);
    void AddButton(const CatalogueRow& row, bool isBuilt);
    void DrawPictures(int page);
    void Describe(const CatalogueRow* row);

    QTabBar* TabStrip1;
    QStackedWidget* m_pages;
    QScrollArea* m_scroller;
    std::array<QGridLayout*, 3> m_grids{};
    QLabel* Label3;
    QLabel* Label2;
};

} // namespace orvane
