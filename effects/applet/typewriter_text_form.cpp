#include "effects/applet/typewriter_text_form.h"

#include "services/file_requests.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QComboBox>
#include <QTimer>

namespace orvane {

TypewriterTextForm::TypewriterTextForm(Workbench& bench, QWidget* parent)
    : EffectForm("Typer", bench, parent)
{
    AddTextPage();
    AddFontPage();
    AddPropertiesPage();
    AddButtons(Buttons::Paged);
}

void TypewriterTextForm::AddTextPage()
{
    PageBuilder page =
        AddPage({u"Step 1: Enter Typewriter Text",
                 u"In the box below, type the text you wish to display in the Typewriter Text "
                 u"effect.  You can also specify the name of a text file."});
    page.CheckBox("ReadFromFile",
                  u"Read Typewriter text from a text file (you must include the text file in "
                  u"order for this special effect to work correctly");
    page.MultiLineBox("TypedText", u"Typewriter text:");
    page.LockedBrowseRow("TextFile", u"Text filename:", {},
                         {.Button = "cmdBrowseForTextFile",
                          .Caption = u"Browse for text file...",
                          .Request = {.Title = u"Browse...",
                                      .Filter = u"All Files (*.*)|*.*|Text Files (*.txt)|*.txt",
                                      .FilterIndex = 2,
                                      .Purpose = FolderPurpose::Texts},
                          .Source = &m_files.RequiredFileSources[typewriterTextFileSlot]});
    page.Fill();
}

void TypewriterTextForm::AddFontPage()
{
    PageBuilder page =
        AddPage({u"Step 2: Text Properties", u"Specify the font and text properties below."});
    page.ComboBox("FontName", u"Font:", AppletFonts, true);
    FontSize = page.Narrow(page.ComboBox("FontSize", u"Font Size (points):", FontSizes, true));
    WatchSize(FontSize);
    PageBuilder style = page.Frame(u"Font Style");
    style.CheckBox("Bold", u"Bold");
    style.CheckBox("Italic", u"Italic");
    page.ColorBox("TextColor", u"Text Color:", "TextColorSwatch");
    page.Fill();
}

void TypewriterTextForm::AddPropertiesPage()
{
    PageBuilder page = AddPage(
        {u"Step 3: Typewriter properties", u"Specify additional Typewriter properties below."});
    WatchSize(page.Narrow(page.TextBox("AppletWidth", u"Width (pixels):")));
    WatchSize(page.Narrow(page.TextBox("AppletHeight", u"Height (pixels):")));
    page.Slider("Speed", u"Typing speed:", u"Slow", u"Fast",
                {.Lowest = slowestTypewriter,
                 .Highest = fastestTypewriter,
                 .Tick = 50,
                 .LargeStep = 50,
                 .SmallStep = 10});
    page.ComboBox("Cycles", u"Loop the animation:", CycleCounts, true);
    page.ColorBox("BackColor", u"Background Color:", "BackColorSwatch");
    page.LockedBrowseRow("BackImage", u"Background Image:", {},
                         {.Button = "cmdBrowseForImage",
                          .Caption = u"Browse for image...",
                          .Request = ImageRequest(),
                          .NoBlanks = FileRole::Image,
                          .Source = &m_files.RequiredFileSources[typewriterBackImageSlot]});
    page.TextBox("LinkURL", u"Link to this Web page URL:");
    page.Fill();
}

/// Tells the author who leaves a box with no positive number in it, changed or not. The word comes
/// once the focus has moved on, so that a click on another control still reaches it.
void TypewriterTextForm::WatchSize(QWidget* box)
{
    const auto tell = [this, box](QWidget* left, QWidget* entered) {
        if (left == box && entered != nullptr && entered->window() == this)
            QTimer::singleShot(0, this, [this, box] { TellSize(box); });
    };
    connect(qApp, &QApplication::focusChanged, this, tell);
}

void TypewriterTextForm::TellSize(QWidget* box)
{
    if (!isVisible() || box->hasFocus())
        return;
    const bool isFont = box == FontSize;
    const QLineEdit* line = isFont ? FontSize->lineEdit() : static_cast<QLineEdit*>(box);
    const auto complaint = CheckPositive(FromQt(line->text()));
    if (!complaint)
        return;
    m_bench.Dialogs.Say(complaint->Words);
    if (isFont)
        SetComboText(*FontSize, {});
}

} // namespace orvane
