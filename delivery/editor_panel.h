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

    /// The page comes to the front.
    void Begin();

    /// Keeps the chosen editor for this and later runs, unless one is known.
    void Keep(Settings& settings) const;

signals:
    /// A double click or Enter chose an editor.
    void EditorChosen();

private:
    ActingList* lstHTMLEditors;
};

} // namespace orvane
