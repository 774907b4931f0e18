#pragma once

#include "delivery/delivery_flow.h"

#include <QWidget>

class QRadioButton;

namespace orvane {

/// The delivery wizard's page on which the author chooses how the effect gets into a page.
class MethodPanel : public QWidget
{
    Q_OBJECT

public:
    /// Starts with auto-insertion.
    MethodPanel();

    /// The page comes to the front.
    void Begin();

    InsertMode Mode() const;
    void Choose(InsertMode mode);

private:
    std::array<QRadioButton*, insertModes.size()> optInsertMode{};
};

} // namespace orvane
