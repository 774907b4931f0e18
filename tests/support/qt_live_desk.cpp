#include "tests/support/qt_live_desk.h"

#include "effects/effect_windows.h"
#include "preview/live_preview_panel.h"
#include "program/qt_resources.h"
#include "tests/support/picture_files.h"
#include "tests/support/qt_controls.h"
#include "windows/qt_text.h"

namespace orvane::testing {

LiveDesk::LiveDesk()
    : m_files(m_calls, FromQt(m_home.path())),
      Bench{.Core = m_fake.Core,
            .Dialogs = Page.Dialogs,
            .Files = m_files,
            .Settings = m_fake.Settings,
            .Shell = Page.Shell,
            .Clipboard = m_fake.Clipboard,
            .Pane = Page.Pane,
            .Help = m_fake.Help,
            .StateFolder = FromQt(m_home.filePath("state")),
            .Today = m_fake.Bench.Today,
            .Clock = m_fake.Bench.Clock}
{
    m_fake.Core.ProgramFolder = FromQt(m_home.path());
    InstallResources(m_files, Page.Dialogs, Folder(), u"tests");
    for (const char* picture : {"a.gif", "b.gif"})
        WriteFile(m_home.filePath(picture).toStdString(), GifBytes(200, 200));
    Page.Pane.hide();
}

std::unique_ptr<WizardForm> LiveDesk::Open(EffectKind kind, const Text& draft, bool hasPreview)
{
    auto wizard = MakeWizard(kind, Bench);
    wizard->Open(Recipe{draft});
    if (hasPreview)
        AddLivePreview(*wizard, Bench, &Page.Pane);
    wizard->show();
    wizard->resize(1000, 600);
    LetRun();
    return wizard;
}

bool LiveDesk::BringsPicture(const std::function<void()>& change)
{
    const int before = Page.LiveShown;
    change();
    return WaitFor([&] { return Page.LiveShown > before; });
}

} // namespace orvane::testing
