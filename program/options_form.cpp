#include "program/options_form.h"

#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr TextView defaultBrowser = u"default browser";

// "Dream Weaver" in two words here and in one in the delivery wizard stays as it is.
constexpr std::array<TextView, 10> webPageEditors = {u"AOLPress",
                                                     u"FrontPage",
                                                     u"FrontPage Express",
                                                     u"Dream Weaver",
                                                     u"Microsoft Publisher 98",
                                                     u"NetObjects Fusion",
                                                     u"Netscape Composer",
                                                     u"Page Loom",
                                                     u"Yahoo/Geocities PageBuilder",
                                                     u"Other"};

} // namespace

OptionsForm::OptionsForm(Workbench& bench, QWidget* parent) : QDialog(parent), m_bench(bench)
{
    setObjectName(QStringLiteral("Options"));
    setWindowTitle(QStringLiteral("Preferences"));
    auto* all = new QVBoxLayout(this);
    auto* body = new QWidget(this);
    all->addWidget(body);
    PageBuilder page(body);
    body->layout()->setContentsMargins({});
    AddViewerFrame(page);
    AddMiscellaneousFrame(page);
    AddEditorFrame(page);
    page.Fill();
    AddButtons(page);
    OpenHelpOnF1(this, bench.Help, help_topics::preferences);
    Load();
}

void OptionsForm::AddViewerFrame(PageBuilder& page)
{
    PageBuilder frame = page.Frame(u"External viewer");
    txtBrowser = new QLineEdit;
    txtBrowser->setObjectName(QStringLiteral("txtBrowser"));
    txtBrowser->setAccessibleName(QStringLiteral("Browser"));
    cmdBrowse1 = frame.Button(QStringLiteral("cmdBrowse1"), u"Browse...");
    connect(cmdBrowse1, &QPushButton::clicked, this, &OptionsForm::BrowseForBrowser);
    frame.Row({}, {txtBrowser, cmdBrowse1});
    chkOverride = frame.CheckBox(QStringLiteral("chkOverride"), u"Override default");
    connect(chkOverride, &QCheckBox::clicked, this, &OptionsForm::Override);
}

void OptionsForm::AddMiscellaneousFrame(PageBuilder& page)
{
    PageBuilder frame = page.Frame(u"Miscellaneous");
    txtDefaultPath = new QLineEdit;
    txtDefaultPath->setObjectName(QStringLiteral("txtDefaultPath"));
    QPushButton* browse = frame.Button(QStringLiteral("cmdBrowse3"), u"Browse...");
    connect(browse, &QPushButton::clicked, this, &OptionsForm::BrowseForDefaultPath);
    frame.Row(u"Default directory:", {txtDefaultPath, browse});
    frame.CheckBox(QStringLiteral("chkAlwaysUse"), u"Always use")->setEnabled(false);
    chkUnlock =
        frame.CheckBox(QStringLiteral("chkUnlock"),
                       u"Unlock filename input boxes to allow user to manually type filenames");
}

void OptionsForm::AddEditorFrame(PageBuilder& page)
{
    cboWebPageEditor = page.Frame(u"Web page editor")
                           .ComboBox(QStringLiteral("cboWebPageEditor"),
                                     u"Select your Web page editor:", webPageEditors, true);
}

void OptionsForm::AddButtons(PageBuilder& page)
{
    QPushButton* ok = page.Button(QStringLiteral("cmdOK"), u"&OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &OptionsForm::Save);
    QPushButton* cancel = page.Button(QStringLiteral("cmdCancel"), u"&Cancel");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* line = new QHBoxLayout;
    line->addStretch(1);
    line->addWidget(ok);
    line->addWidget(cancel);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
}

void OptionsForm::Load()
{
    const Settings& settings = m_bench.Settings;
    txtBrowser->setText(ToQt(settings.Get(u"Apps", u"Browser", u"c:\\")));
    chkUnlock->setChecked(AreInputBoxesUnlocked(settings));
    // Stays as it is: Save() writes Apps/Override, so the box opens unticked every time.
    chkOverride->setChecked(settings.Get(u"Misc", u"Override", u"0") == u"1");
    if (!chkOverride->isChecked())
        Override(false);
    txtDefaultPath->setText(ToQt(settings.Get(u"Misc", u"DefaultPath", u"c:\\")));
    cboWebPageEditor->setEditText(ToQt(settings.Get(u"Misc", u"HTMLEditor", u"")));
}

void OptionsForm::Override(bool isOn)
{
    txtBrowser->setText(isOn ? QString() : ToQt(defaultBrowser));
    txtBrowser->setReadOnly(!isOn);
    cmdBrowse1->setEnabled(isOn);
    if (isOn)
        txtBrowser->setFocus();
}

void OptionsForm::BrowseForBrowser()
{
    m_bench.Core.BrowserPathChoice.clear();
    BrowseDialog(m_bench.Core, m_bench.Dialogs,
                 {.Title = u"Select Browser...",
                  .Filter = u"All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat",
                  .FilterIndex = 1});
    // Cancel empties the field, as it always has.
    txtBrowser->setText(ToQt(m_bench.Core.BrowserPathChoice));
}

void OptionsForm::BrowseForDefaultPath()
{
    const auto folder =
        m_bench.Dialogs.PickFolder(u"Default directory", FromQt(txtDefaultPath->text()));
    if (folder)
        txtDefaultPath->setText(ToQt(*folder));
}

void OptionsForm::Save()
{
    const Text browser = FromQt(txtBrowser->text());
    if (browser.empty()) {
        m_bench.Dialogs.Say(
            u"If you are overriding the default broswer, you must enter the path and filename of a "
            u"different browser in the Browser input box.");
        txtBrowser->setFocus();
        return;
    }
    const auto flag = [](const QCheckBox* box) { return box->isChecked() ? u"1" : u"0"; };
    Settings& settings = m_bench.Settings;
    settings.Put(u"Apps", u"Browser", browser);
    settings.Put(u"Apps", u"Override", flag(chkOverride));
    settings.Put(u"Misc", u"UnlockInputBoxes", flag(chkUnlock));
    settings.Put(u"Misc", u"HTMLEditor", FromQt(cboWebPageEditor->currentText()));
    if (const Text folder = FromQt(txtDefaultPath->text()); !folder.empty())
        SaveDefaultPath(m_bench.Core, settings, folder);
    accept();
}

} // namespace orvane
