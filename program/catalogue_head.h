#pragma once

#include "core/text.h"

#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QLabel;
class QTabBar;

namespace orvane {

class CatalogueSearchBox;

/// The line above the catalogue's pages: the tabs, and the box that searches all of them. While it
/// does, the number of effects found stands in place of the tabs.
class CatalogueHead : public QWidget
{
    Q_OBJECT

public:
    CatalogueHead();

    /// The tab in front.
    int Tab() const;

    /// What the author looks for; blank for nothing.
    Text Typed() const;
    bool IsSearching() const;

    /// Puts the number of effects found in place of the tabs, or gives the tabs back.
    void ShowFound(std::size_t count);

    /// Goes to the search box; from there, Escape leads back to where the focus was.
    void BeginSearch();

    /// The same, with a letter that was typed elsewhere; false when the key is none.
    bool BeginSearchWith(const QKeyEvent& key);

    /// Empties the search box, which gives the tabs and the focus back.
    void EndSearch();

signals:
    /// Another tab, or another text to look for.
    void Changed();
    void FirstWanted(); ///< Return in the search box
    void ListWanted();  ///< Down in the search box

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
