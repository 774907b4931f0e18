#include "preview/qt_preview_pane.h"

#include "preview/qt_pane_note.h"
#include "preview/qt_quiet_line.h"
#include "preview/qt_status_line.h"
#include "preview/qt_web_view_module.h"
#include "windows/controls.h"
#include "windows/qt_text.h"

#include <QLabel>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace orvane {

namespace {

constexpr TextView instead =
    u"\r\n\r\nYou can preview the special effect in your own Web browser instead.";

} // namespace

QtPreviewPane::QtPreviewPane(Dialogs& dialogs, Shell& shell, FileStore& files, QWidget* parent)
    : QWidget(parent),
      m_file(files),
      m_boxes(dialogs),
      m_outside(dialogs, shell, files),
      m_stack(new QStackedLayout(this)),
      m_note(new QtPaneNote),
      m_viewPage(new QWidget),
      lblCannotShow(new QLabel),
      m_quietLine(new QtQuietLine),
      lblPageStatus(new QtStatusLine)
{
    BuildViewPage();
    connect(m_note, &QtPaneNote::TryAgainWanted, this, &QtPreviewPane::TryAgain);
    m_stack->addWidget(m_viewPage);
    m_stack->addWidget(m_note);
}

QtPreviewPane::~QtPreviewPane()
{
    delete m_view; // while this can still hear its last words
}

void QtPreviewPane::BuildViewPage()
{
    lblPageStatus->setObjectName("lblPageStatus");
    lblPageStatus->setAccessibleName("Page status");
    lblCannotShow->setObjectName("lblCannotShow");
    lblCannotShow->setTextFormat(Qt::PlainText);
    lblCannotShow->setWordWrap(true);
    lblCannotShow->setMargin(4);
    lblCannotShow->setFrameStyle(QFrame::StyledPanel);
    lblCannotShow->hide();
    connect(m_quietLine, &QtQuietLine::RunWanted, this, [this] { RunLive(false); });
    auto* rows = new QVBoxLayout(m_viewPage);
    rows->setContentsMargins({});
    rows->addWidget(lblCannotShow);
    rows->addStretch();
    rows->addWidget(m_quietLine);
    rows->addWidget(lblPageStatus);
}

Done QtPreviewPane::Navigate(const PanePage& page)
{
    EndFile();
    m_live.reset();
    m_isQuiet = false;
    const Done written = m_file.Begin(page);
    if (!FaultIn(written))
        ShowPage();
    return written;
}

void QtPreviewPane::ShowLive(const LivePage& page)
{
    m_live = page;
    RunLive(true);
}

/// Shows the live page, from its beginning.
void QtPreviewPane::RunLive(bool isQuiet)
{
    if (!m_live)
        return;
    m_isQuiet = isQuiet;
    ShowNotes(m_live->Note, m_live->RunsInStatus);
    if (CanShow())
        m_view->ShowLive(*m_live, isQuiet);
}

void QtPreviewPane::LeaveFile()
{
    // A page that is still being read goes on under the other name.
    if (m_file.Leave())
        ShowPage();
}

void QtPreviewPane::Clear()
{
    if (m_view)
        m_view->Clear();
    lblPageStatus->clear();
    m_quietLine->hide();
    m_live.reset();
    EndFile();
    m_file.End();
}

void QtPreviewPane::Warm()
{
    LoadView();
}

void QtPreviewPane::ShowPage()
{
    lblPageStatus->clear();
    const PanePage& page = m_file.Page();
    ShowNotes(page.Note, page.RunsInStatus);
    const bool isFirst = m_view == nullptr;
    if (!CanShow())
        return PageRead();
    if (isFirst)
        m_held.Begin(*window());
    m_view->ShowPage(page.Path, page.Files);
}

/// Begins a new page, with what is told beside it.
void QtPreviewPane::ShowNotes(const Text& note, bool runsInStatus)
{
    m_boxes.StartPage();
    m_outside.StartPage();
    m_quietLine->hide();
    lblPageStatus->setFrameStyle(runsInStatus ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
    lblCannotShow->setText(ToQtLines(note));
    lblCannotShow->setVisible(!note.empty());
}

/// Whether there is a view, which is in sight then; otherwise a note says why not.
bool QtPreviewPane::CanShow()
{
    if (const auto refusal = LoadView()) {
        ShowNote(Join({*refusal, instead}), false);
        return false;
    }
    m_stack->setCurrentWidget(m_viewPage);
    return true;
}

/// Loads the module and makes its view, once; what stands against it otherwise.
std::optional<Text> QtPreviewPane::LoadView()
{
    if (m_view)
        return std::nullopt;
    const MakeWebView make = LoadWebViewModule();
    if (!make)
        return u"The built-in preview could not be loaded: its file (orvane_web_view) or a library "
               u"that it needs is missing.";
    Text refusal;
    m_view = make(*this, m_viewPage, refusal);
    if (!m_view)
        return refusal;
    m_view->setObjectName("WebBrowser1");
    auto* rows = static_cast<QVBoxLayout*>(m_viewPage->layout());
    delete rows->takeAt(1); // the stretch that kept the view's place
    rows->insertWidget(1, m_view, 1);
    return std::nullopt;
}

void QtPreviewPane::ShowNote(const Text& words, bool canTryAgain)
{
    m_note->Tell(words, canTryAgain);
    m_stack->setCurrentWidget(m_note);
}

void QtPreviewPane::TryAgain()
{
    if (m_live)
        return RunLive(true);
    const Done written = m_file.Put();
    if (const Fault* fault = FaultIn(written))
        return ShowNote(Join({u"The preview page could not be written: ", Words(*fault), u"."}),
                        true);
    ShowPage();
}

PageBoxReply QtPreviewPane::AnswerBox(const PageBox& box)
{
    if (!m_isQuiet)
        return m_boxes.Answer(box);
    m_quietLine->Tell(Join({u"The page shows a box: ", box.Words}));
    return {};
}

bool QtPreviewPane::MayOpenWindow()
{
    if (m_isQuiet)
        m_quietLine->Tell(u"The page opens a window.");
    return !m_isQuiet;
}

void QtPreviewPane::LivePageShown()
{
    // Of a page that ended meanwhile a note told.
    m_stack->setCurrentWidget(m_viewPage);
    SetReadingOrder(*window());
    emit LiveShown();
}

void QtPreviewPane::PlacePointed(const PointedPlace& place)
{
    if (Pointed)
        Pointed(place);
}

void QtPreviewPane::PageNeeded()
{
    // A page that cannot be put back fails to load, and the view shows that.
    static_cast<void>(m_file.Put());
}

void QtPreviewPane::PageRead()
{
    m_held.End();
    EndFile();
    if (Loaded)
        Loaded();
}

/// Removes the file of the page that was shown last, which the engine needs no longer.
void QtPreviewPane::EndFile()
{
    // The engine puts in the part that takes the keys with its first page.
    SetReadingOrder(*window());
    m_file.Remove();
}

void QtPreviewPane::StatusWritten(TextView status)
{
    lblPageStatus->SetStatus(status);
}

void QtPreviewPane::OutsideWanted(TextView target, bool byAuthor)
{
    if (byAuthor && target.starts_with(ownLinkStart)) {
        emit OwnLinkFollowed(Text(target.substr(ownLinkStart.size())));
        return;
    }
    // What the author did not click on is no reason for a box.
    if (m_isQuiet && !byAuthor)
        m_quietLine->Tell(Join({u"The page leads out of the preview, to: ", target}), false);
    else
        m_outside.Offer(target, byAuthor);
}

void QtPreviewPane::PageEnded(PageEnd end)
{
    lblPageStatus->clear();
    PageRead();
    ShowNote(end == PageEnd::Hung ? u"The preview stopped working: the page no longer answered.  "
                                    u"Click 'Try again' to load it once more."
                                  : u"The preview stopped working.  Click 'Try again' to load it "
                                    u"once more.",
             true);
}

} // namespace orvane
