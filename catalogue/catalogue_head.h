#pragma once

#include "core/text.h"

#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QLabel;
class QTabBar;

namespace orvane {

class CatalogueSearchBox;

/// The line above the catalogue's pages: the tabs, and the box that searches all pages. During a
/// search the number of effects found stands in place of the tabs.
class CatalogueHead : public QWidget
{
    Q_OBJECT

public:
    CatalogueHead();

    /// The current tab, counted from 0.
    int Tab() const;

    /// The text in the search box.
    Text Typed() const;
    /// Whether the search box holds more than blanks.
    bool IsSearching() const;

    /// During a search, shows the number of effects found in place of the tabs; otherwise shows the
    /// tabs.
    void ShowFound(std::size_t count);

    /// Gives the search box the focus; Escape in it calls EndSearch().
    void BeginSearch();

    /// The same, and puts a letter or digit into the box that was typed elsewhere; does nothing and
    /// gives false for any other key.
    bool BeginSearchWith(const QKeyEvent& key);

    /// Empties the search box and gives the focus back to the control that had it before the
    /// search, or to the tabs.
    void EndSearch();

signals:
    /// The tab or the text in the search box changed.
    void Changed();
    void FirstWanted(); ///< Enter in the search box: open the first effect found
    void ListWanted();  ///< Down in the search box: go into the page below

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddTabs();
    void AddTurn(const QKeySequence& keys, int step);

    QTabBar* TabStrip1;
    QLabel* m_found;
    CatalogueSearchBox* txtSearch;
    QPointer<QWidget> m_focusBefore;
};

} // namespace orvane
