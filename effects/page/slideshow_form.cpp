#include "effects/page/slideshow_form.h"

#include "core/pick_lists.h"
#include "windows/image_list_panel.h"
#include "windows/qt_text.h"

#include <QCheckBox>

namespace orvane {

namespace {

constexpr TextView imagesHeading = u"Step 1: Select Images for your Slideshow";

} // namespace

SlideshowForm::SlideshowForm(Workbench& bench, QWidget* parent)
    : EffectForm("frmSlideshow", bench, parent)
{
    setWindowTitle(QStringLiteral("Slideshow Wizard"));
    AddImagePage();
    AddPropertiesPage();
    AddButtons(Buttons::Paged);
    resize(size().expandedTo(FromTwips(7015, 7005)));
}

void SlideshowForm::AddImagePage()
{
    PageBuilder page =
        AddPage({imagesHeading, u"Using the File/Folder boxes below, add the images to the "
                                u"Slideshow Image list in the order you wish them to appear in "
                                u"your slideshow."});
    page.Fill(new ImageListPanel(m_bench, m_files, SlideshowImageList()));
}

void SlideshowForm::AddPropertiesPage()
{
    PageBuilder page = AddPage({u"Step 2: Set Slideshow Properties",
                                u"Set the following properties for your Slideshow.  These settings "
                                u"are optional.",
                                "txtSlideDuration"});
    txtSlideDuration =
        page.Narrow(page.TextBox("txtSlideDuration", u"Display each image for:", {}, u"seconds"));
    auto* controls =
        page.CheckBox("chkDisplayControls", u"Display slideshow controls (Play, Forward, Reverse)");
    auto* autoStart = page.CheckBox("chkAutoStart", u"Autostart the slideshow");
    page.CheckBox("chkRepeat", u"Loop the slideshow (the slideshow will restart when it reaches "
                               u"the last slide)");
    page.Frame(u"Slide transitions")
        .ComboBox("cmbTransitions", u"Transition:", RevealTransitions, false,
                  u"Specify the length of time required for the transition to complete");
    page.Fill();
    connect(controls, &QCheckBox::clicked, this, [this] { KeepMoving("chkDisplayControls"); });
    connect(autoStart, &QCheckBox::clicked, this, [this] { KeepMoving("chkAutoStart"); });
}

/// A slideshow without timer and buttons could not move: the other box gets the tick.
void SlideshowForm::KeepMoving(ControlName unticked)
{
    const auto complaint = CheckMoves(Parameters(), unticked);
    if (!complaint)
        return;
    m_bench.Dialogs.Say(complaint->Words, complaint->Look);
    findChild<QCheckBox*>(ToQt(complaint->Control))->setChecked(true);
}

void SlideshowForm::Next()
{
    EffectForm::Next();
    if (Page() == 1)
        txtSlideDuration->selectAll();
}

void SlideshowForm::Previous()
{
    EffectForm::Previous();
    // Stays as it is: on the way back the images appear in an animation.
    SetHeading(imagesHeading, u"Using the File/Folder boxes below, add the images to the Slideshow "
                              u"Image list in the order you wish them to appear in your "
                              u"animation.");
}

} // namespace orvane
