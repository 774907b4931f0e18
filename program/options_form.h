#pragma once

#include "windows/ok_cancel_form.h"

class QCheckBox;
class QComboBox;

namespace orvane {

struct Preferences;

/// The window with the author's preferences, which OK stores.
class OptionsForm : public OkCancelForm
{
    Q_OBJECT

public:
    explicit OptionsForm(Workbench& bench, QWidget* parent = nullptr);

protected:
    void Accept() override;

private:
    void AddViewerFrame(PageBuilder& page);
    void AddMiscellaneousFrame(PageBuilder& page);
    void AddEditorFrame(PageBuilder& page);
    void Show(const Preferences& preferences);
    void SetBrowser(TextView browser);
    void Override(bool isOn);
    void BrowseForBrowser();
    void BrowseForDefaultPath();

    QLineEdit* txtBrowser;
    QPushButton* cmdBrowse1;
    QCheckBox* chkOverride;
    QLineEdit* txtDefaultPath;
    QCheckBox* chkUnlock;
    QComboBox* cboWebPageEditor;
};

} // namespace orvane
