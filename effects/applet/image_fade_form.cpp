#include "effects/applet/image_fade_form.h"

#include "core/file_names.h"
#include "core/pick_lists.h"
#include "services/file_complaints.h"
#include "services/file_requests.h"
#include "windows/file_drop.h"
#include "windows/picture.h"
#include "windows/row_form.h"

namespace orvane {

namespace {

RowListLook ImageListLook()
{
    return {.Columns = {{"FadeImages", u"Images:"}, {"FadeLinks", u"Link to this Web page URL:"}},
            .Words = fadeWords,
            .Buttons = {{RowCommand::Add, "cmdAddImage", u"&Add Image...",
                         u"Click here to insert an image into the fading image list"},
                        {RowCommand::Remove, "cmdRemoveImage", u"&Remove Image",
                         u"Click here to remove an image from the list"},
                        {.Command = RowCommand::Edit,
                         .Name = "cmdLinkToURL",
                         .Caption = u"&Link to URL...",
                         .Tip = u"Click here to link the selected image to a Web page",
                         .StaysEnabled = true},
                        {RowCommand::MoveUp, "cmdMoveUp", u"Move Up"},
                        {RowCommand::MoveDown, "cmdMoveDown", u"Move Down"}}};
}

void AddLinkField(PageBuilder& page)
{
    page.BrowseRow("txtURL", u"Link to this Web page URL:", {},
                   {.Button = "cmdBrowseForImage",
                    .Caption = u"Browse for image...",
                    .Request = ImageRequest()});
}

constexpr RowLook linkWindow{.Name = "ImageFadeURL",
                             .Title = u"Specify URL to link to ",
                             .Kind = EffectKind::ImageFade,
                             .Letters = 70,
                             .AddFields = &AddLinkField,
                             .Selected = "txtURL"};

} // namespace

ImageFadeForm::ImageFadeForm(Workbench& bench, QWidget* parent)
    : EffectForm("ImageFade", bench, parent),
      m_images(new RowListPanel(ImageListLook(), bench.Dialogs))
{
    PageBuilder page =
        AddPage({u"Image Fade effect",
                 u"Insert images in the order you want them to fade.  All images must be the same "
                 u"size (width and height) in pixels."});
    page.Fill(m_images);
    AddFields(page);
    connect(m_images, &RowListPanel::AddWanted, this, &ImageFadeForm::AddImage);
    connect(m_images, &RowListPanel::EditWanted, this,
            [this] { EditRowByWindow<FadeImage>(*m_images, linkWindow, m_bench); });
    connect(m_images, &RowListPanel::RowsChanged, this, &ImageFadeForm::KeepSize);
    connect(new FileDrop(*m_images, pictureMasks, m_bench), &FileDrop::Dropped, this,
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
    FadeWidth = page.HiddenText("FadeWidth");
    FadeHeight = page.HiddenText("FadeHeight");
}

/// Without images the first one that comes may have any size. One that is put back has the size of
/// those that were removed: no other one was added since.
void ImageFadeForm::KeepSize()
{
    if (m_images->Rows().empty()) {
        m_width = FadeWidth->text();
        m_height = FadeHeight->text();
        FadeWidth->clear();
        FadeHeight->clear();
    } else if (FadeWidth->text().isEmpty()) {
        FadeWidth->setText(m_width);
        FadeHeight->setText(m_height);
    }
}

void ImageFadeForm::AddImage()
{
    if (const auto path = m_bench.Dialogs.OpenFile(ImageRequest()))
        AddImages({*path});
}

void ImageFadeForm::AddImages(const std::vector<Text>& paths)
{
    ImageFade fade = Parameters();
    const std::size_t before = fade.Images.size();
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
    SetParameters(fade);
    if (before < fade.Images.size())
        m_images->Select(fade.Images.size() - 1);
    for (const Complaint& complaint : refused.All())
        ShowComplaint(complaint);
}

} // namespace orvane
