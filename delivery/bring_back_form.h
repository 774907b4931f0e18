#pragma once

#include "insertion/page_backups.h"
#include "windows/ok_cancel_form.h"

#include <optional>
#include <vector>

class QTreeWidget;

namespace orvane {

/// The window "Bring back a page": the backups of one page, compared with the page as it is.
class BringBackForm : public OkCancelForm
{
    Q_OBJECT

public:
    /// Shows the backups of the page with that full path; with an empty path the author looks for a
    /// page first.
    BringBackForm(Workbench& bench, TextView page, QWidget* parent = nullptr);

    /// The full path of the page that was brought back to an earlier version; nothing when none
    /// was.
    const std::optional<Text>& BroughtBack() const { return m_broughtBack; }

protected:
    void Accept() override;

private:
    void BrowseForPage();
    void ShowBackups();
    BackupsPlace Place() const;

    Text m_page;
    std::vector<PageBackup> m_backups;
    std::optional<Text> m_broughtBack;

    QLineEdit* txtPage;
    QLabel* lblBackups;
    QTreeWidget* lstBackups;
    QPushButton* cmdBrowseForPage;
};

} // namespace orvane
