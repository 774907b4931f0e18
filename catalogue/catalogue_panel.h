#pragma once

#include "catalogue/effect_section.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class QAction;
class QKeyEvent;

namespace orvane {

class CatalogueHead;
class CataloguePages;
class EffectDescription;
class LinkLabel;
class MovingPicture;

/// All effects as pictures on three tabs, the author's favorites on a fourth, a box that searches
/// them all, and the title and description of the effect under the pointer or with the focus.
class CataloguePanel : public QWidget
{
    Q_OBJECT

public:
    /// `settings` store the favorites and the effects used last, and must outlive the panel.
    explicit CataloguePanel(Settings& settings);

    /// Adds a way into the program below the pages, as EffectDescription::AddWay().
    LinkLabel* AddWay(ControlName name, TextView words, TextView tip);

    /// Gives the first effect of the page in front the focus, or the search where there is none.
    void GoToEffects();

signals:
    /// The author wants to open the wizard of this effect.
    void EffectWanted(orvane::EffectKind kind);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void AddKeys();
    ButtonMaker MakerFor(ControlName group);
    void ShowPage();
    void Refresh();
    void TakeButtonEvent(EffectButton& button, const QEvent& event);
    bool TakeButtonKey(EffectButton& button, const QKeyEvent& key);
    void Describe(EffectButton* button);
    void ShowMenu(EffectButton& button, const QPoint& place);
    void ToggleFavoriteOf(const EffectButton* button);

    Settings& m_settings;
    CatalogueHead* m_head;
    CataloguePages* m_pages;
    EffectDescription* m_description;
    MovingPicture* m_moving;
    QAction* m_favorite;
    QAction* m_moves;
    QPointer<EffectButton> m_described;
};

} // namespace orvane
