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

/// The recording double on the real disk, for pages that the engine itself reads.
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

    /// Every page loaded from now on sees this local time, such as "2001-11-28T13:05:09", and it
    /// stands still; the page moves it with `pageClock.now += milliseconds`.
    void FixClock(const std::string& localTime);

    /// Puts a file beside the page.
    void AddFile(const std::string& name, std::string_view bytes);

    /// Writes the page file and shows it, without waiting.
    void Open(std::string_view page);

    /// The same, and waits until the page is loaded; fails the test when it is not.
    void Load(std::string_view page);

    /// The value of a JavaScript expression in the page; invalid when the page does not answer.
    QVariant Value(const std::string& expression);

    /// Waits until the expression is true in the page; fails the test when it does not become so.
    void WaitUntil(const std::string& expression, int timeoutMs = 10000);

    /// Moves the mouse to the middle of an element, given as an expression, or clicks there.
    void MoveTo(const std::string& element);
    void ClickOn(const std::string& element);

    /// The widget in which the engine takes mouse, keys and fingers.
    QWidget& Surface();

    /// The colours on the screen at points of the page, which are lists of two: [red, green, blue].
    QVariantList ColorsAt(const QVariantList& points);

    /// What the page wrote into its status line; empty while a note is shown.
    Text Status();

    /// The pane's note in place of the page; empty while there is none.
    Text Note();

    /// The open windows of the page.
    std::vector<QWidget*> Windows() const;

    std::string Path(const std::string& name) const; ///< of a file beside the page
    bool PageFileExists() const;

    FakeDialogs Dialogs;
    FakeShell Shell;
    RecordingFiles Files;
    QtPreviewPane Pane{Dialogs, Shell, Files};

private:
    QPoint MiddleOf(const std::string& element);

    QTemporaryDir m_folder;
    std::string m_clock;
};

} // namespace orvane::testing
