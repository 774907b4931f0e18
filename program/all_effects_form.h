#pragma once

#include "core/effect_kind.h"
#include "core/workbench.h"

#include <QDialog>

#include <optional>

namespace orvane {

/// The window with the page on which every effect of the catalogue runs; a click on the name of one
/// chooses it.
class AllEffectsForm : public QDialog
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane, or null. Both must outlive the window.
    AllEffectsForm(Workbench& bench, QWidget* pane, QWidget* parent = nullptr);

    /// The effect that was chosen; nothing when the window was closed.
    const std::optional<EffectKind>& Chosen() const { return m_chosen; }

    /// Takes the end of a link that was clicked on the page; one that names no effect is ignored.
    void Follow(TextView link);

private:
    LivePage Page() const;

    Workbench& m_bench;
    Text m_file; ///< the page's full path
    std::optional<EffectKind> m_chosen;
};

} // namespace orvane
