#pragma once

#include "disk/disk_file_store.h"
#include "disk/system_calls.h"
#include "tests/support/qt_browser_page.h"
#include "windows/wizard_form.h"

#include <QTemporaryDir>

#include <memory>

namespace orvane::testing {

/// Wizards with their live preview in the real web view, one after the other, over the real disk
/// and doubles for the rest of a workbench.
class LiveDesk
{
public:
    LiveDesk();

    /// Shows the wizard of an effect with the fields of a draft, in a window that is wide enough
    /// for the preview.
    std::unique_ptr<WizardForm> Open(EffectKind kind, const Text& draft, bool hasPreview = true);

    /// Waits until `change` has brought another picture on screen; false after ten seconds.
    [[nodiscard]] bool BringsPicture(const std::function<void()>& change);

    /// The program's folder, with its resources and a picture "a.gif" and "b.gif".
    Text Folder() const { return m_fake.Core.ProgramFolder; }

    BrowserPage Page; ///< the pane

private:
    QTemporaryDir m_home;
    PosixCalls m_calls;
    DiskFileStore m_files;
    FakeDesk m_fake;

public:
    Workbench Bench;
};

} // namespace orvane::testing
