#include "delivery/make_dir_form.h"

#include "delivery/make_dir.h"
#include "windows/folder_boxes.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"
#include "windows/remember_place.h"

#include <QPushButton>

namespace orvane {

namespace {

constexpr int publishTopic = 52;

} // namespace

MakeDirForm::MakeDirForm(Workbench& bench, TextView folder, QWidget* parent)
    : QDialog(parent), m_bench(bench)
{
    setObjectName(QStringLiteral("MakeDir"));
    setWindowTitle(QStringLiteral("Create Folder"));
    RememberPlace(*this, bench.Settings);
    PageBuilder page(this);
    m_boxes = new FolderBoxes(bench.Files, {"Drive1", "Dir1", {}}, u"*.*");
    m_boxes->GoTo(folder);
    page.Fill(m_boxes);
    txtFolder = page.TextBox("txtFolder", u"Type name of new folder here -->");
    QPushButton* ok = page.Button("cmdOK", u"&OK");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &MakeDirForm::MakeDirEnter);
    QPushButton* cancel = page.Button("cmdCancel", u"&Cancel");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    page.Buttons({ok, cancel});
    OpenHelpOnF1(this, bench.Help, publishTopic);
    txtFolder->setFocus();
    setMinimumWidth(400);
    resize(440, 380);
}

void MakeDirForm::MakeDirEnter()
{
    const MakeDirEnd end = orvane::MakeDirEnter(m_boxes->Folder(), FromQt(txtFolder->text()),
                                                m_bench.Files, m_bench.Dialogs);
    if (!end.Closes) {
        txtFolder->setFocus();
        return;
    }
    m_newFolder = end.NewFolder;
    accept();
}

} // namespace orvane
