#pragma once

#include "core/workbench.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace orvane {

class PageBuilder;

/// The preferences.
class OptionsForm : public QDialog
{
    Q_OBJECT

public:
    explicit OptionsForm(Workbench& bench, QWidget* parent = nullptr);

private:
    void AddViewerFrame(PageBuilder& page);
    void AddMiscellaneousFrame(PageBuilder& page);
    void AddEditorFrame(PageBuilder& page);
    void AddButtons(PageBuilder& page);
    void Load();
    void Override(bool isOn);
    void BrowseForBrowser();
    void BrowseForDefaultPath();
    void Save();

    Workbench& m_bench;
    QLineEdit* txtBrowser;
    QPushButton* cmdBrowse1;
    QCheckBox* chkOverride;
    QLineEdit* txtDefaultPath;
    QCheckBox* chkUnlock;
    QComboBox* cboWebPageEditor;
};

} // namespace orvane
