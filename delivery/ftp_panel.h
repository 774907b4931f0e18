#pragma once

#include "core/settings.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace orvane {

/// The fields of a file transfer with the servers used last. No page shows it: the program
/// transfers no files.
class FtpPanel : public QWidget
{
    Q_OBJECT

public:
    /// The settings must outlive the panel.
    explicit FtpPanel(Settings& settings);

    /// Fills the server list and the user name from the settings.
    void GetRecentFTP();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowUsername();

    Settings& m_settings;
    QComboBox* cmbServerName;
    QLineEdit* m_username;
};

} // namespace orvane
