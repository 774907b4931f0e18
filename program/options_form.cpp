#include "program/options_form.h"

#include "services/preferences.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>

namespace orvane {

OptionsForm::OptionsForm(Workbench& bench, QWidget* parent)
    : OkCancelForm("Options", u"Preferences", help_topics::preferences, bench, parent)
{
    PageBuilder page = Rows();
    AddViewerFrame(page);
    AddMiscellaneousFrame(page);
    AddEditorFrame(page);
    page.Fill();
    AddButtons();
    Show(LoadPreferences(bench.Settings));
}

void OptionsForm::AddViewerFrame(PageBuilder& page)
{
    PageBuilder frame = page.Frame(u"External viewer");
    cmdBrowse1 = frame.Button("cmdBrowse1", u"Browse...");
    connect(cmdBrowse1, &QPushButton::clicked, this, &OptionsForm::BrowseForBrowser);
    txtBrowser = frame.TextBoxWithButton("txtBrowser", {}, cmdBrowse1);
    txtBrowser->setAccessibleName(QStringLiteral("Browser"));
    chkOverride = frame.CheckBox("chkOverride", u"Override default");
    connect(chkOverride, &QCheckBox::clicked, this, &OptionsForm::Override);
}

void OptionsForm::AddMiscellaneousFrame(PageBuilder& page)
{
    PageBuilder frame = page.Frame(u"Miscellaneous");
    QPushButton* browse = frame.Button("cmdBrowse3", u"Browse...");
    connect(browse, &QPushButton::clicked, this, &OptionsForm::BrowseForDefaultPath);
    txtDefaultPath = frame.TextBoxWithButton("txtDefaultPath", u"Default directory:", browse);
    frame.CheckBox("chkAlwaysUse", u"Always use")->setEnabled(false);
    chkUnlock = frame.CheckBox(
        "chkUnlock", u"Unlock filename input boxes to allow user to manually type filenames");
}

void OptionsForm::AddEditorFrame(PageBuilder& page)
{
    cboWebPageEditor =
        page.Frame(u"Web page editor")
            .ComboBox("cboWebPageEditor", u"Select your Web page editor:", WebPageEditors(), true);
}

void OptionsForm::Show(const Preferences& preferences)
{
    chkOverride->setChecked(preferences.chkOverride);
    SetBrowser(preferences.txtBrowser);
    txtDefaultPath->setText(ToQt(preferences.txtDefaultPath));
    chkUnlock->setChecked(preferences.chkUnlock);
    SetComboText(*cboWebPageEditor, preferences.cboWebPageEditor);
}

void OptionsForm::SetBrowser(TextView browser)
{
    txtBrowser->setText(ToQt(browser));
    txtBrowser->setReadOnly(!chkOverride->isChecked());
    cmdBrowse1->setEnabled(chkOverride->isChecked());
}

void OptionsForm::Override(bool isOn)
{
    SetBrowser(isOn ? TextView() : defaultBrowser);
    if (isOn)
        txtBrowser->setFocus();
}

void OptionsForm::BrowseForBrowser()
{
    m_bench.Core.BrowserPathChoice.clear();
    BrowseDialog(m_bench.Core, m_bench.Dialogs,
                 {.Title = u"Select Browser...",
                  .Filter = u"All Files (*.*)|*.*|Programs (*.AppImage, *.sh)|*.AppImage;*.sh",
                  .FilterIndex = 1});
    // Cancel empties the field, as it always has.
    txtBrowser->setText(ToQt(m_bench.Core.BrowserPathChoice));
    txtBrowser->setFocus(Qt::OtherFocusReason);
}

void OptionsForm::BrowseForDefaultPath()
{
    const auto folder =
        m_bench.Dialogs.PickFolder(u"Default directory", FromQt(txtDefaultPath->text()));
    if (folder)
        txtDefaultPath->setText(ToQt(*folder));
    txtDefaultPath->setFocus(Qt::OtherFocusReason);
}

void OptionsForm::Accept()
{
    const Preferences preferences{
        .txtBrowser = FromQt(txtBrowser->text()),
        .chkOverride = chkOverride->isChecked(),
        .txtDefaultPath = FromQt(txtDefaultPath->text()),
        .chkUnlock = chkUnlock->isChecked(),
        .cboWebPageEditor = FromQt(cboWebPageEditor->currentText()),
    };
    if (const auto complaint = Check(preferences))
        return ShowComplaint(*complaint);
    SavePreferences(preferences, m_bench.Core, m_bench.Settings);
    accept();
}

} // namespace orvane
