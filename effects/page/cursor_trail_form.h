#pragma once

#include "effects/page/cursor_trail.h"
#include "windows/effect_form.h"

namespace orvane {

/// The window of the Mouse Cursor Trail.
class CursorTrailForm : public EffectForm<CursorTrail>
{
    Q_OBJECT

public:
    explicit CursorTrailForm(Workbench& bench, QWidget* parent = nullptr);
};

} // namespace orvane
