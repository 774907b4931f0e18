#pragma once

#include "preview/live_page.h"
#include "reedit/page_effects.h"
#include "reedit/places_to_point.h"
#include "reedit/placing.h"
#include "windows/wizard_frame.h"

#include <array>
#include <optional>
#include <vector>

class QListWidget;
class QRadioButton;

namespace orvane {

class PagePanePanel;

/// A finished effect that goes into a page: in place of one there, or where the author points.
struct PutInJob
{
    FinishedPayload Payload;
    std::string Page;                          ///< as the author saw it last
    std::optional<EffectInPage> Replaced = {}; ///< of EffectsIn(Page); nothing: the author points
    bool IsKnown = true; ///< the wizard had the fields of it, so that nothing gets lost
};

/// How the window that shows a page with an effect ended.
enum class PutInEnd
{
    Closed,
    BackToWizard,
    Written,
};

/// The window that shows a page as it would be with an effect, and writes it so. A new effect goes
/// in front of or behind the part of the page that the author chooses.
class PutInForm : public WizardFrame
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane, or null. `page` must outlive the window.
    PutInForm(Workbench& bench, PageEffects& page, PutInJob job, QWidget* pane,
              QWidget* parent = nullptr);

    /// How it ended; meaningful once it has closed.
    PutInEnd End() const { return m_end; }

protected:
    void Next() override;
    void Previous() override;
    void showEvent(QShowEvent* event) override;

private:
    /// Whether the page is scrolled to the effect.
    enum class Scrolling
    {
        ToEffect,
        Stays,
    };

    void AddPlaces(PageBuilder& rows);
    void ListPlaces();
    const PlaceToPoint& ChosenIn(const std::vector<PlaceToPoint>& places) const;
    std::size_t PlaceIn(const std::vector<PlaceToPoint>& places) const;
    PlacedPage Edited(const FinishedPayload& payload) const;
    PlacedPage Shown(const FinishedPayload& payload) const;
    void FollowPage();
    void GoTo(const PointedPlace& place);
    void ShowPage(Scrolling scrolling = Scrolling::ToEffect);
    bool MayReplace() const;

    PageEffects& m_page;
    PutInJob m_job;
    bool m_isThere = true;
    PutInEnd m_end = PutInEnd::Closed;
    std::vector<PlaceToPoint> m_places;
    std::string m_numbered; ///< the page, with a number at each of its parts
    std::vector<PlaceToPoint> m_numberedPlaces;
    PagePanePanel* m_pane;
    QListWidget* lstPlaces = nullptr; ///< null where the place is known
    std::array<QRadioButton*, 2> optPlace{};
    QLabel* lblPutIn;
};

} // namespace orvane
