#include "effects/applet/image_fade_form.h"

#include "core/file_names.h"
#include "core/pick_lists.h"
#include "effects/applet/image_fade_url_form.h"
#include "services/file_complaints.h"
#include "services/file_requests.h"
#include "windows/file_drop.h"
#include "windows/picture.h"
#include "windows/row_list_panel.h"

namespace orvane {

namespace {

constexpr RowButton buttons[] = {
    {RowCommand::Add, "cmdAddImage", u"&Add Image...",
     u"Click here to insert an image into the fading image list"},
    {RowCommand::Remove, "cmdRemoveImage", u"&Remove Image",
     u"Click here to remove an image from the list"},
    {.Command = RowCommand::Edit,
     .Name = "cmdLinkToURL",
     .Caption = u"&Link to URL...",
     .Tip = u"Click here to link the selected image to a Web page",
     .StaysEnabled = true},
    {RowCommand::MoveUp, "cmdMoveUp", u"Move Up"},
    {RowCommand::MoveDown, "cmdMoveDown", u"Move Down"},
};

} // namespace

ImageFadeForm::ImageFadeForm(Workbench& bench, QWidget* parent)
    : EffectForm("ImageFade", bench, parent),
      m_images(new RowListPanel(
          {{"FadeImages", u"Images:"}, {"FadeLinks", u"Link to this Web page URL:"}}, fadeWords,
          buttons, bench.Dialogs))
{
    PageBuilder page =
        AddPage({u"Image Fade effect",
                 u"Insert images in the order you want them to fade.  All images must be the same "
                 u"size (width and height) in pixels."});
    page.Fill(m_images);
    AddFields(page);
    connect(m_images, &RowListPanel::AddWanted, this, &ImageFadeForm::AddImage);
    connect(m_images, &RowListPanel::EditWanted, this, &ImageFadeForm::EditLink);
    connect(m_images, &RowListPanel::RowRemoved, this, [this](std::size_t row) {
        ImageFade fade = Parameters();
        m_forgotten.push_back(ForgetImage(fade, row));
        Show(fade);
    });
    connect(m_images, &RowListPanel::RowPutBack, this, [this](std::size_t row) {
        ImageFade fade = Parameters();
        RecallImage(fade, row, m_forgotten.back());
        m_forgotten.pop_back();
        Show(fade);
    });
    connect(m_images, &RowListPanel::RowMoved, this, [this](std::size_t from, std::size_t to) {
        ImageFade fade = Parameters();
        MoveSource(fade, from, to);
        Show(fade);
    });
    connect(new FileDrop(*m_images, pictureMasks, m_bench.Dialogs), &FileDrop::Dropped, this,
            &ImageFadeForm::AddImages);
    AddButtons(Buttons::OnePage, "cmdHelp");
}

void ImageFadeForm::AddFields(PageBuilder& page)
{
    page.NumberBox("FadePause", u"Pause after each fade:", 0, 999,
                   u"This is the amount of time to wait before fading to the next image, specified "
                   u"in seconds",
                   u"second(s)");
    page.Slider("FadeSpeed", u"Speed of fade:", u"Slow", u"Fast",
                {.Lowest = slowestFade,
                 .Highest = fastestFade,
                 .Tick = 15,
                 .LargeStep = 10,
                 .SmallStep = 5},
                u"This specifies how quickly to fade from one image to the next");
    page.ComboBox("FadeTarget", u"Target frame (optional):", LinkTargets, true,
                  u"This is the name of the target frame where the Web page will be opened");
    page.HiddenText("FadeWidth");
    page.HiddenText("FadeHeight");
}

void ImageFadeForm::Show(const ImageFade& fade)
{
    const auto selected = m_images->Rows().Selected;
    SetParameters(fade);
    if (selected)
        m_images->Select(*selected);
}

void ImageFadeForm::AddImage()
{
    if (const auto path = m_bench.Dialogs.OpenFile(ImageRequest()))
        AddImages({*path});
}

void ImageFadeForm::AddImages(const std::vector<Text>& paths)
{
    ImageFade fade = Parameters();
    const std::size_t before = fade.FadeImages.size();
    FileComplaints refused;
    for (const Text& path : paths) {
        const PickedImage image = Measured(path);
        const auto complaint = orvane::AddImage(fade, image);
        if (complaint && paths.size() == 1)
            return ShowComplaint(*complaint);
        if (complaint)
            refused.Add(*complaint, GetFileName(path));
        else if (!image.Size && paths.size() > 1)
            refused.Add({u"Orvane can't read this image:", {}}, GetFileName(path));
    }
    Show(fade);
    if (before < fade.FadeImages.size())
        m_images->Select(fade.FadeImages.size() - 1);
    for (const Complaint& complaint : refused.All())
        ShowComplaint(complaint);
}

void ImageFadeForm::EditLink()
{
    const std::vector<Text> row = m_images->Rows().Rows.at(m_images->Rows().Selected.value());
    auto* form = new ImageFadeURLForm(m_bench, row[1], this);
    form->Begin([this, form, name = row[0]] { m_images->ChangeSelectedRow({name, form->URL()}); });
}

} // namespace orvane
