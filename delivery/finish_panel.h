#pragma once

#include "core/workbench.h"
#include "delivery/delivery_report.h"

#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace orvane {

/// The delivery wizard's last page: what was done, and what is left for the author to do.
class FinishPanel : public QWidget
{
    Q_OBJECT

public:
    FinishPanel(Workbench& bench, const FinishedPayload& payload, const DeliveryReport& report);

    /// The page comes to the front, or what it tells has changed.
    void Begin();

signals:
    /// An earlier version of the delivered page is wanted.
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
