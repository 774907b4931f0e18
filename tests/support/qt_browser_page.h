#pragma once

#include "preview/qt_preview_pane.h"
#include "tests/support/doubles.h"

#include <QTemporaryDir>
#include <QVariant>

#include <functional>
#include <string>
#include <string_view>

namespace orvane::testing {

/// Runs the event loop until the condition holds; false when it still does not after `timeoutMs`.
[[nodiscard]] bool WaitFor(const std::function<bool()>& condition, int timeoutMs = 10000);

/// A file store that records as the double does, but works on the real disk, for pages that the
/// browser engine itself reads.
class RecordingFiles : public FakeFileStore
{
public:
    bool FileExists(TextView path) const override;
    Outcome<std::string> Read(TextView path) const override;
    Done Replace(TextView path, std::string_view bytes) override;
    Done Remove(TextView path) override;
};

/// A page in the real web view, with its folder on the disk and doubles around it.
class BrowserPage
{
public:
    BrowserPage();
    ~BrowserPage();

    /// Puts a file beside the page that pages opened from now on may read.
    void AddFile(const std::string& name, std::string_view bytes);

    /// Writes the page file and starts to load it, or the live page, without waiting.
    void Open(std::string_view page);

    /// The same, and waits until the page is loaded; fails the test after ten seconds.
    void Load(std::string_view page);

    /// The value of a JavaScript expression in the page; invalid when the page does not answer
    /// within five seconds.
    QVariant Value(const std::string& expression);

    /// Waits until the expression is true in the page; fails the test after `timeoutMs`.
    void WaitUntil(const std::string& expression, int timeoutMs = 10000);

    /// Clicks on the middle of an element, which is given as a JavaScript expression; fails the
    /// test when there is no such element.
    void ClickOn(const std::string& element);

    /// The widget to which mouse, keyboard and touch events for the page are sent.
    QWidget& Surface();

    /// The colours on the screen, each a list [red, green, blue], at points of the page, each a
    /// list [x, y] in pixels.
    QVariantList ColorsAt(const QVariantList& points);

    /// What the page wrote into its status line; empty while a note is shown.
    Text Status();

    /// The pane's note in place of the page; empty while there is none.
    Text Note();

    /// The windows that the page has opened.
    std::vector<QWidget*> Windows() const;

    /// The full path of a file beside the page.
    std::string Path(const std::string& name) const;

    /// The live page with these bytes and the files beside it.
    LivePage Live(std::string_view page) const;

    /// Whether the page's file exists; the pane removes it once the page is loaded.
    bool PageFileExists() const;

    bool IsLive = false; ///< pages opened from now on are live ones
    int LiveShown = 0;   ///< how many of them came on screen

    FakeDialogs Dialogs;
    FakeShell Shell;
    RecordingFiles Files;
    QtPreviewPane Pane{Dialogs, Shell, Files};

private:
    QPoint MiddleOf(const std::string& element);

    QTemporaryDir m_folder;
    Texts m_files;
};

} // namespace orvane::testing
