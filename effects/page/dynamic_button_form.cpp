#include "effects/page/dynamic_button_form.h"

#include "core/pick_lists.h"
#include "services/file_requests.h"
#include "windows/picture_box.h"

namespace orvane {

DynamicButtonForm::DynamicButtonForm(Workbench& bench, QWidget* parent)
    : EffectForm("DynaBut", bench, parent)
{
    PageBuilder fresh =
        AddButtonPage(u"Button properties when mouse pointer is not interacting with the button:",
                      "DefaultImage");
    AddImage(fresh, "DefaultImage",
             u"Default button image (Click the 'Browse' button to select an image)", 0);

    PageBuilder over = AddButtonPage(
        u"Button properties when mouse pointer is moved over the button:", "OverImage");
    AddImage(over, "OverImage",
             u"onMouseOver button image (Click the 'Browse' button to select an image)", 1);
    AddSound(over, "OverSound", u"onMouseOver sound  (Click the 'Browse' button to select a sound)",
             2);

    PageBuilder click = AddButtonPage(
        u"Button properties when mouse pointer is clicked on the button:", "ClickImage");
    AddImage(click, "ClickImage",
             u"onClick button image (Click the 'Browse' button to select an image)", 3);
    AddSound(click, "ClickSound", u"onClick sound  (Click the 'Browse' button to select a sound)",
             4);
    AddLink(click);
    AddButtons(Buttons::Paged);
    EditApplet();
}

PageBuilder DynamicButtonForm::AddButtonPage(TextView frame, ControlName focus)
{
    PageBuilder page =
        AddPage({u"Dynamic Button",
                 u"The Dynamic Button special effect creates buttons that change and play sounds "
                 u"when the mouse moves over or clicks on them.",
                 focus});
    PageBuilder rows = page.Frame(frame);
    page.Fill();
    return rows;
}

void DynamicButtonForm::AddImage(PageBuilder& frame, ControlName name, TextView tip,
                                 std::size_t slot)
{
    auto* preview = new PictureBox({150, 80});
    frame.LockedBrowseRow(name, u"Button Image:", tip,
                          {.Button = "cmdBrowseForImage",
                           .Caption = u"Browse for image...",
                           .Request = BrowseRequest(imageFiles, FolderPurpose::Images),
                           .Folder = &OrvaneCore::ImageFolderMemo,
                           .NoBlanks = FileRole::Image,
                           .Source = &m_files.RequiredFileSources.at(slot),
                           .Then = [preview](const Text& path) { preview->Load(path); }});
    frame.Row(u"Preview", {preview});
    m_previews.push_back({slot, preview, {}});
}

void DynamicButtonForm::AddSound(PageBuilder& frame, ControlName name, TextView tip,
                                 std::size_t slot)
{
    frame.LockedBrowseRow(name, u"Play this sound:", tip,
                          {.Button = "cmdBrowseForSound",
                           .Caption = u"Browse for sound...",
                           .Request = BrowseRequest(soundFiles, FolderPurpose::Sounds),
                           .Folder = &OrvaneCore::LastSoundFolder,
                           .NoBlanks = FileRole::Sound,
                           .Source = &m_files.RequiredFileSources.at(slot)});
}

void DynamicButtonForm::AddLink(PageBuilder& frame)
{
    frame.BrowseRow("LinkUrl", u"Link to this URL:", {},
                    {.Button = "cmdBrowseForURL",
                     .Caption = u"Browse for URL...",
                     .Request = {.Title = u"Browse...",
                                 .Filter = Text(FileFilter(pageFiles)),
                                 .FilterIndex = 2,
                                 .Purpose = FolderPurpose::Links},
                     .Folder = &OrvaneCore::LinkFolderMemo},
                    u"(Optional)");
    frame.ComboBox("LinkTarget", u"Target frame:", LinkTargets, true);
}

void DynamicButtonForm::UpdateForm()
{
    for (auto& [slot, box, shown] : m_previews)
        if (const Text& source = m_files.RequiredFileSources.at(slot); source != shown)
            box->Load(shown = source);
}

} // namespace orvane
