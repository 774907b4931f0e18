#include "delivery/ftp_panel.h"

#include "delivery/recent_servers.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QComboBox>
#include <QEvent>
#include <QProgressBar>
#include <QTimer>

namespace orvane {

FtpPanel::FtpPanel(Settings& settings) : m_settings(settings)
{
    PageBuilder page(this);
    cmbServerName = page.ComboBox("cmbServerName", u"Server:", {}, true);
    m_username = page.TextBox("Text3(0)", u"Username:");
    QLineEdit* password = page.TextBox("Text3(1)", u"Password:");
    password->setEchoMode(QLineEdit::Password);
    page.TextBox("txtInitialDirectory", u"Initial Directory:");
    PageBuilder progress = page.Frame(u"Progress");
    auto* bar = new QProgressBar;
    bar->setObjectName(QStringLiteral("ProgressBar1"));
    bar->setValue(0);
    progress.Row(u"File being transferred:", {bar});
    page.Fill();
    for (QLineEdit* box : {m_username, password})
        box->installEventFilter(this);
    connect(cmbServerName, &QComboBox::currentTextChanged, this, &FtpPanel::ShowUsername);
    connect(cmbServerName, &QComboBox::activated, this, &FtpPanel::ShowUsername);
    GetRecentFTP();
}

void FtpPanel::GetRecentFTP()
{
    const RecentServers recent = orvane::GetRecentFTP(m_settings);
    cmbServerName->clear();
    for (const Text& server : recent.Servers)
        cmbServerName->addItem(ToQt(server));
    cmbServerName->setEditText(ToQt(recent.ServerName));
    m_username->setText(ToQt(recent.Username));
}

void FtpPanel::ShowUsername()
{
    if (const auto username = UsernameFor(m_settings, FromQt(cmbServerName->currentText())))
        m_username->setText(ToQt(*username));
}

bool FtpPanel::eventFilter(QObject* watched, QEvent* event)
{
    // Behind the click that gave the focus, which would set the cursor.
    if (event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, static_cast<QLineEdit*>(watched), &QLineEdit::selectAll);
    return QWidget::eventFilter(watched, event);
}

} // namespace orvane
