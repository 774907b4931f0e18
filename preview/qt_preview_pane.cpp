#include "preview/qt_preview_pane.h"

#include "core/file_names.h"
#include "windows/qt_text.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLibrary>
#include <QPainter>
#include <QPushButton>
#include <QStackedLayout>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr TextView instead =
    u"\r\n\r\nYou can preview the special effect in your own Web browser instead.";

/// One line of plain text that is cut at the label's edge and never widens it; every blank counts.
class StatusLine : public QLabel
{
public:
    using QLabel::QLabel;

    QSize sizeHint() const override { return {0, QLabel::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QFrame::paintEvent(event);
        QPainter painter(this);
        const QRect room = contentsRect();
        style()->drawItemText(
            &painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), foregroundRole());
    }
};

Text LeadOutsideQuestion(TextView target)
{
    constexpr std::size_t longest = 500;
    const bool isMail = StartsWithIgnoringCase(target, u"mailto:");
    return Join({u"The page leads out of the preview, to:\r\n\r\n", Left(target, longest),
                 target.size() > longest ? u"..." : u"",
                 isMail ? u"\r\n\r\nDo you want to open it in your e-mail program?"
                        : u"\r\n\r\nDo you want to open it in your Web browser?"});
}

} // namespace

QtPreviewPane::QtPreviewPane(Dialogs& dialogs, Shell& shell, FileStore& files, QWidget* parent)
    : QWidget(parent),
      m_dialogs(dialogs),
      m_shell(shell),
      m_files(files),
      m_boxes(dialogs),
      m_stack(new QStackedLayout(this)),
      m_notePage(new QWidget),
      m_viewPage(new QWidget),
      lblPreviewNote(new QLabel),
      lblPageStatus(new StatusLine),
      cmdTryAgain(new QPushButton("&Try again")),
      cmdPreviewInBrowser(new QPushButton("Preview in &Browser"))
{
    BuildViewPage();
    BuildNotePage();
    m_stack->addWidget(m_viewPage);
    m_stack->addWidget(m_notePage);
}

QtPreviewPane::~QtPreviewPane()
{
    delete m_view; // while this can still hear its last words
}

void QtPreviewPane::BuildNotePage()
{
    lblPreviewNote->setObjectName("lblPreviewNote");
    lblPreviewNote->setTextFormat(Qt::PlainText);
    lblPreviewNote->setWordWrap(true);
    cmdTryAgain->setObjectName("cmdTryAgain");
    cmdPreviewInBrowser->setObjectName("cmdPreviewInBrowser");
    connect(cmdTryAgain, &QPushButton::clicked, this, [this] { TryAgain(); });
    connect(cmdPreviewInBrowser, &QPushButton::clicked, this, [this] { OpenInBrowser(); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdTryAgain);
    buttons->addWidget(cmdPreviewInBrowser);
    buttons->addStretch();
    auto* rows = new QVBoxLayout(m_notePage);
    rows->addStretch();
    rows->addWidget(lblPreviewNote);
    rows->addLayout(buttons);
    rows->addStretch();
}

void QtPreviewPane::BuildViewPage()
{
    lblPageStatus->setObjectName("lblPageStatus");
    lblPageStatus->setAccessibleName("Page status");
    lblPageStatus->setTextFormat(Qt::PlainText);
    auto* rows = new QVBoxLayout(m_viewPage);
    rows->setContentsMargins({});
    rows->addStretch();
    rows->addWidget(lblPageStatus);
}

void QtPreviewPane::Navigate(TextView path)
{
    if (path != m_path)
        PageRead();
    m_path = path;
    const Outcome<std::string> page = m_files.Read(m_path);
    if (const Fault* fault = FaultIn(page)) {
        Clear();
        return ShowNote(Join({u"The preview page could not be read: ", Words(*fault), u"."}),
                        false);
    }
    m_page = ValueIn(page);
    m_fileGone = false;
    ShowPage();
}

void QtPreviewPane::Clear()
{
    if (m_view)
        m_view->Clear();
    lblPageStatus->clear();
    PageRead();
}

void QtPreviewPane::Warm()
{
    LoadView();
}

void QtPreviewPane::ShowPage()
{
    m_boxes.StartPage();
    m_ledOutside = false;
    lblPageStatus->clear();
    if (const auto refusal = LoadView()) {
        PageRead();
        return ShowNote(Join({*refusal, instead}), false);
    }
    m_stack->setCurrentWidget(m_viewPage);
    m_view->ShowPage(m_path);
}

/// Loads the module and makes its view, once; what stands against it otherwise.
std::optional<Text> QtPreviewPane::LoadView()
{
    if (m_view)
        return std::nullopt;
    QLibrary module(QCoreApplication::applicationDirPath() + u'/' + webViewModule);
    const auto make = reinterpret_cast<MakeWebView>(module.resolve(makeWebViewName));
    if (!make)
        return u"The built-in preview could not be loaded: its file (orvane_web_view) or a library "
               u"that it needs is missing.";
    Text refusal;
    m_view = make(*this, m_viewPage, refusal);
    if (!m_view)
        return refusal;
    m_view->setObjectName("WebBrowser1");
    auto* rows = static_cast<QVBoxLayout*>(m_viewPage->layout());
    delete rows->takeAt(0); // the stretch that kept the view's place
    rows->insertWidget(0, m_view, 1);
    return std::nullopt;
}

void QtPreviewPane::ShowNote(const Text& words, bool canTryAgain)
{
    lblPreviewNote->setText(ToQtLines(words));
    cmdTryAgain->setVisible(canTryAgain);
    m_stack->setCurrentWidget(m_notePage);
}

void QtPreviewPane::TryAgain()
{
    const Done restored = RestorePage();
    if (const Fault* fault = FaultIn(restored))
        return ShowNote(Join({u"The preview page could not be written: ", Words(*fault), u"."}),
                        true);
    ShowPage();
}

void QtPreviewPane::OpenInBrowser()
{
    if (PreviewInBrowser)
        return PreviewInBrowser();
    const Done restored = RestorePage();
    if (const Fault* fault = FaultIn(restored))
        return ShowNote(Join({u"The preview page could not be written: ", Words(*fault), u"."}),
                        cmdTryAgain->isVisible());
    m_shell.OpenWithShell(m_path);
}

/// Puts the page file back in its place after it was deleted.
Done QtPreviewPane::RestorePage()
{
    if (!m_fileGone)
        return {};
    const Done done = m_files.Replace(m_path, m_page);
    m_fileGone = FaultIn(done) != nullptr;
    return done;
}

PageBoxReply QtPreviewPane::AnswerBox(const PageBox& box)
{
    return m_boxes.Answer(box);
}

void QtPreviewPane::PageNeeded()
{
    // A page that cannot be put back fails to load, and the view shows that.
    static_cast<void>(RestorePage());
}

void QtPreviewPane::PageRead()
{
    if (!std::exchange(m_fileGone, true))
        static_cast<void>(m_files.Remove(m_path));
}

void QtPreviewPane::StatusWritten(TextView status)
{
    Text line(status);
    std::replace_if(
        line.begin(), line.end(), [](char16_t character) { return character < u' '; }, u' ');
    lblPageStatus->setText(ToQt(line));
}

void QtPreviewPane::OutsideWanted(TextView target, bool byAuthor)
{
    // A script may lead away again and again; the author is asked once, and after each act.
    if (m_askingOutside || (m_ledOutside && !byAuthor))
        return;
    m_ledOutside = true;
    m_askingOutside = true;
    const bool isFile = target.starts_with(pathSeparator);
    if (isFile && !m_files.FileExists(target))
        m_dialogs.Say(Join({u"The page leads to a file that is not there:\r\n\r\n", target}));
    else if (m_dialogs.Ask(LeadOutsideQuestion(target)))
        m_shell.OpenWithShell(target);
    m_askingOutside = false;
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
