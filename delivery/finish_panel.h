#pragma once

#include "core/workbench.h"
#include "delivery/delivery_report.h"

#include <QWidget>

#include <vector>

class QLabel;
class QListWidget;
class QPushButton;

namespace orvane {

/// The delivery wizard's last page: what was done, and what is left for the author to do.
class FinishPanel : public QWidget
{
    Q_OBJECT

public:
    /// All that is passed here must outlive the panel.
    FinishPanel(Workbench& bench, const FinishedPayload& payload, const DeliveryReport& report);

    /// Called when the page is shown or the report has changed: shows the report, the buttons that
    /// apply and the files to upload anew.
    void PageShown();

signals:
    /// The author wants an earlier version of the page with this full path.
    void BringBackWanted(const orvane::Text& page);

private:
    void ListFiles(const std::vector<Text>& names);

    Workbench& m_bench;
    const FinishedPayload& m_payload;
    const DeliveryReport& m_report;
    QLabel* lblReport;
    QPushButton* cmdOpenPage;
    QPushButton* cmdOpenFolder;
    QPushButton* cmdBringBack;
    QListWidget* lstFilesToUpload;
};

} // namespace orvane
