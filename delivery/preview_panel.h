#pragma once

#include "preview/preview_page.h"

#include <QPointer>
#include <QWidget>

namespace orvane {

/// The delivery wizard's page that shows the effect.
class PreviewPanel : public QWidget
{
    Q_OBJECT

public:
    /// `pane` is borrowed while this panel lives, and may be null.
    explicit PreviewPanel(QWidget* pane);

    /// Gives the pane back.
    ~PreviewPanel() override;

signals:
    void PreviewWanted(orvane::PreviewMode mode);

private:
    QPointer<QWidget> m_pane;
};

} // namespace orvane
