#include "windows/picture_list_panel.h"

#include "core/block.h"
#include "core/file_names.h"
#include "core/percents.h"
#include "services/block_pictures.h"
#include "services/file_complaints.h"
#include "services/file_requests.h"
#include "windows/block_rows.h"
#include "windows/file_drop.h"
#include "windows/picture.h"
#include "windows/picture_box.h"
#include "windows/row_form.h"
#include "windows/wait_cursor.h"

#include <QHBoxLayout>

namespace orvane {

namespace {

constexpr QSize previewRoom(120, 100);

constexpr RowListWords words{
    .EditEmpty = u"The list of pictures is empty.  Please add a picture before editing it.",
    .EditNone = u"Select a picture from the list in order to edit it.",
    .RemoveEmpty = u"The list of pictures is empty.  Please add a picture before removing it.",
    .RemoveNone = u"Select a picture from the list in order to remove it.",
    .CannotMoveUp = u"Select a picture in the list.  You cannot move the first picture upward.",
    .CannotMoveDown = u"Select a picture in the list.  You cannot move the last picture downward.",
};

RowListLook LookOf(ControlName list, PictureWords pictureWords)
{
    RowListLook look{.Columns = {{list, u"P&ictures:", &WithoutPercents}},
                     .Words = words,
                     .Buttons = {{RowCommand::Add, "cmdAddPictures", u"&Add pictures...",
                                  u"Adds one or more pictures; you can drop files and folders on "
                                  u"the list as well"},
                                 {RowCommand::Remove, "cmdRemovePicture", u"&Remove"},
                                 {RowCommand::MoveUp, "cmdMoveUp", u"Move Up"},
                                 {RowCommand::MoveDown, "cmdMoveDown", u"Move Down"}},
                     .HasButtonsBelow = true};
    if (pictureWords == PictureWords::None)
        return look;
    look.Columns.insert(look.Columns.end(),
                        {{"lstDescriptions", u"Description:"}, {"lstLinks", u"Link to this URL:"}});
    look.Buttons.insert(look.Buttons.begin() + 1,
                        {RowCommand::Edit, "cmdEditPicture", u"&Edit picture..."});
    look.RowTip = u"Double-click to enter description and link";
    return look;
}

void AddPictureFields(PageBuilder& page)
{
    page.TextBox("txtDescription", u"&Description:",
                 u"What the picture shows, for those who do not see it");
    AddLink(page, u"The address that a click on the picture leads to; empty for no link");
}

} // namespace

PictureListPanel::PictureListPanel(EffectKind kind, PictureWords pictureWords, Workbench& bench,
                                   ControlName list, QWidget* parent)
    : QWidget(parent),
      m_bench(bench),
      m_list(new RowListPanel(LookOf(list, pictureWords), bench.Dialogs)),
      m_preview(new PictureBox(previewRoom))
{
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(m_list, 1);
    all->addWidget(m_preview, 0, Qt::AlignTop);
    connect(m_list, &RowListPanel::AddWanted, this, &PictureListPanel::Browse);
    connect(new FileDrop(*m_list, blockPictureMasks, bench), &FileDrop::Dropped, this,
            &PictureListPanel::Add);
    for (const auto changed : {&RowListPanel::RowSelected, &RowListPanel::RowsChanged})
        connect(m_list, changed, this, &PictureListPanel::ShowSelected);
    if (pictureWords == PictureWords::Own)
        connect(m_list, &RowListPanel::EditWanted, this, [this, kind] {
            EditRowByWindow<BlockPicture>(*m_list,
                                          {.Name = "frmPicture",
                                           .Title = u"Description and link of the picture",
                                           .Kind = kind,
                                           .Letters = 70,
                                           .AddFields = &AddPictureFields},
                                          m_bench);
        });
}

void PictureListPanel::Browse()
{
    FileRequest request = BrowseRequest(imageFiles, FolderPurpose::Images);
    request.FilterIndex = 2;
    Add(m_bench.Dialogs.OpenFiles(request));
}

void PictureListPanel::Add(const std::vector<Text>& paths)
{
    FileComplaints refused;
    RowTexts rows;
    {
        const WaitCursor wait;
        for (const Text& path : paths) {
            const PickedImage image = Measured(path);
            if (image.Size)
                rows.push_back(TextsOf(PictureOf(image)));
            else
                refused.Add({u"Orvane can't read this image:", {}}, GetFileName(path));
        }
    }
    m_list->InsertRows(std::move(rows));
    for (const Complaint& complaint : refused.All())
        m_bench.Dialogs.Say(complaint.Words, complaint.Look);
}

void PictureListPanel::ShowSelected()
{
    BlockPicture picture;
    if (m_list->Selected())
        picture = SelectedRowOf<BlockPicture>(*m_list);
    m_preview->Load(picture.Source);
}

} // namespace orvane
