#pragma once

#include "core/settings.h"

#include <QWidget>

namespace orvane {

class ActingList;

/// The delivery wizard's page on which the author chooses an editor for Web pages.
class EditorPanel : public QWidget
{
    Q_OBJECT

public:
    EditorPanel();

    /// Called when the page is shown: gives the list of editors the focus.
    void PageShown();

    /// Stores the chosen editor for this and later runs; does nothing when none is chosen or one is
    /// stored already.
    void Keep(Settings& settings) const;

signals:
    /// A double click or Enter chose an editor.
    void EditorChosen();

private:
    ActingList* lstHTMLEditors;
};

} // namespace orvane
