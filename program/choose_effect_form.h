#pragma once

#include "core/effect_kind.h"
#include "core/workbench.h"

#include <QDialog>

#include <optional>

namespace orvane {

/// The window in which the author chooses an effect of the catalogue to add it to a page.
class ChooseEffectForm : public QDialog
{
    Q_OBJECT

public:
    explicit ChooseEffectForm(Workbench& bench, QWidget* parent = nullptr);

    /// The effect that was chosen; nothing when the window was closed.
    const std::optional<EffectKind>& Chosen() const { return m_chosen; }

private:
    std::optional<EffectKind> m_chosen;
};

} // namespace orvane
