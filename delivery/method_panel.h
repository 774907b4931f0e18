#pragma once

#include "delivery/delivery_flow.h"

#include <QWidget>

#include <array>

class QRadioButton;

namespace orvane {

/// The delivery wizard's page on which the author chooses how the effect gets into a page.
class MethodPanel : public QWidget
{
    Q_OBJECT

public:
    /// Auto-insertion is chosen at first.
    MethodPanel();

    /// Called when the page is shown: gives the chosen option button the focus.
    void PageShown();

    /// The chosen insertion mode.
    InsertMode Mode() const;

    /// Chooses an insertion mode.
    void Choose(InsertMode mode);

private:
    std::array<QRadioButton*, insertModes.size()> optInsertMode{};
};

} // namespace orvane
