#include "delivery/make_dir_form.h"

#include "delivery/make_dir.h"
#include "windows/folder_boxes.h"
#include "windows/qt_text.h"

namespace orvane {

namespace {

constexpr int publishTopic = 52;

} // namespace

MakeDirForm::MakeDirForm(Workbench& bench, TextView folder, QWidget* parent)
    : OkCancelForm("MakeDir", u"Create Folder", publishTopic, bench, parent),
      m_boxes(new FolderBoxes(bench.Files, {"Drive1", "Dir1", {}}, u"*.*"))
{
    m_boxes->GoTo(folder);
    PageBuilder page = Rows();
    page.Fill(m_boxes);
    txtFolder = page.TextBox("txtFolder", u"Type name of new folder here -->");
    AddButtons();
    txtFolder->setFocus();
    setMinimumWidth(400);
    resize(440, 380);
}

void MakeDirForm::Accept()
{
    const MakeDirEnd end = MakeDirEnter(m_boxes->MarkedFolder(), FromQt(txtFolder->text()),
                                        m_bench.Files, m_bench.Dialogs);
    if (!end.Closes) {
        txtFolder->setFocus();
        return;
    }
    m_newFolder = end.NewFolder;
    accept();
}

} // namespace orvane
