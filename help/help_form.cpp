#include "help/help_form.h"

#include "core/file_names.h"
#include "core/file_store.h"
#include "core/shell.h"
#include "help/qt_topic_browser.h"
#include "windows/controls.h"
#include "windows/qt_text.h"

#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace orvane {

namespace {

constexpr TextView bookName = u"orvane.hlp";
constexpr TextView pictureFolder = u"help";

} // namespace

HelpForm::HelpForm(const FileStore& files, Shell& shell, Text programFolder, Text effectsOfTags)
    : QDialog(nullptr, Qt::Window),
      m_files(files),
      m_shell(shell),
      m_programFolder(std::move(programFolder)),
      m_effectsOfTags(std::move(effectsOfTags))
{
    setObjectName(QStringLiteral("HelpForm"));
    setWindowTitle(QStringLiteral("Orvane Help"));
    setAttribute(Qt::WA_QuitOnClose, false);
}

void HelpForm::Build()
{
    const auto book = m_files.Read(PathIn(m_programFolder, bookName));
    if (FaultIn(book) == nullptr)
        m_book = ReadHelpBook(ValueIn(book), m_effectsOfTags);
    cmdBack = MakeButton("cmdBack", u"&Back");
    cmdForward = MakeButton("cmdForward", u"&Forward");
    cmdContents = MakeButton("cmdContents", u"&Contents");
    // Enter belongs to the search.
    for (QPushButton* button : {cmdBack, cmdForward, cmdContents})
        button->setAutoDefault(false);
    txtSearch = new QLineEdit;
    lstContents = new QListWidget;
    txtTopic = new TopicBrowser(m_book, m_files, PathIn(m_programFolder, pictureFolder));
    AddControls();
    ConnectControls();
    FillContents();
}

void HelpForm::AddControls()
{
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {cmdBack, cmdForward, cmdContents})
        buttons->addWidget(button);
    buttons->addStretch(1);
    cmdBack->setEnabled(false);
    cmdForward->setEnabled(false);

    auto* halves = new QSplitter;
    halves->addWidget(MakeTopicList());
    halves->addWidget(txtTopic);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    txtTopic->setObjectName(QStringLiteral("txtTopic"));
    txtTopic->setAccessibleName(QStringLiteral("Topic"));

    auto* all = new QVBoxLayout(this);
    all->addLayout(buttons);
    all->addWidget(halves, 1);
    const int letter = fontMetrics().averageCharWidth();
    halves->setSizes({40 * letter, 84 * letter});
    const QSize wanted(128 * letter, 38 * fontMetrics().lineSpacing());
    resize(wanted.boundedTo(screen()->availableSize() * 0.85));
}

QWidget* HelpForm::MakeTopicList()
{
    txtSearch->setObjectName(QStringLiteral("txtSearch"));
    txtSearch->setAccessibleName(QStringLiteral("Search"));
    txtSearch->setClearButtonEnabled(true);
    lstContents->setObjectName(QStringLiteral("lstContents"));
    lstContents->setAccessibleName(QStringLiteral("Topics"));
    lstContents->setWordWrap(true);
    lstContents->setSpacing(2);

    auto* lblSearch = new QLabel(QStringLiteral("&Search:"));
    lblSearch->setBuddy(txtSearch);
    auto* half = new QWidget;
    auto* lines = new QVBoxLayout(half);
    lines->setContentsMargins({});
    lines->addWidget(lblSearch);
    lines->addWidget(txtSearch);
    lines->addWidget(lstContents, 1);
    return half;
}

void HelpForm::ConnectControls()
{
    connect(cmdBack, &QPushButton::clicked, txtTopic, &QTextBrowser::backward);
    connect(cmdForward, &QPushButton::clicked, txtTopic, &QTextBrowser::forward);
    connect(cmdContents, &QPushButton::clicked, this, &HelpForm::ShowContents);
    connect(txtTopic, &QTextBrowser::backwardAvailable, cmdBack, &QPushButton::setEnabled);
    connect(txtTopic, &QTextBrowser::forwardAvailable, cmdForward, &QPushButton::setEnabled);
    connect(txtTopic, &QTextBrowser::sourceChanged, this, [this](const QUrl& source) {
        m_topic = TopicOf(source);
        MarkTopic();
    });
    connect(txtTopic, &QTextBrowser::anchorClicked, this, &HelpForm::Follow);
    connect(txtSearch, &QLineEdit::textChanged, this, &HelpForm::FillContents);
    connect(txtSearch, &QLineEdit::returnPressed, lstContents,
            [this] { lstContents->setCurrentRow(0); });
    connect(lstContents, &QListWidget::currentItemChanged, this, &HelpForm::OpenCurrentTopic);
    const auto onKey = [this](QKeySequence::StandardKey key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(QKeySequence::Back, [this] { txtTopic->backward(); });
    onKey(QKeySequence::Forward, [this] { txtTopic->forward(); });
    onKey(QKeySequence::Find, [this] { txtSearch->setFocus(Qt::ShortcutFocusReason); });
}

void HelpForm::ShowTopic(int number)
{
    if (txtTopic == nullptr)
        Build();
    const bool isFresh = !isVisible();
    txtTopic->setSource(TopicUrl(number));
    txtTopic->verticalScrollBar()->setValue(0);
    if (isFresh) {
        txtTopic->clearHistory();
        txtSearch->clear();
        txtTopic->setFocus();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void HelpForm::FillContents()
{
    const QSignalBlocker quiet(lstContents);
    lstContents->clear();
    for (const HelpTopic* topic : SearchBook(m_book, FromQt(txtSearch->text()))) {
        auto* item = new QListWidgetItem(ToQt(topic->Title), lstContents);
        item->setData(Qt::UserRole, topic->Number);
    }
    if (lstContents->count() == 0) {
        auto* note = new QListWidgetItem(QStringLiteral("Nothing found"), lstContents);
        note->setFlags(Qt::NoItemFlags);
    }
    MarkTopic();
}

void HelpForm::MarkTopic()
{
    const QSignalBlocker quiet(lstContents);
    lstContents->setCurrentRow(-1);
    for (int row = 0; row < lstContents->count(); ++row)
        if (lstContents->item(row)->data(Qt::UserRole) == m_topic)
            lstContents->setCurrentRow(row);
}

void HelpForm::OpenCurrentTopic()
{
    const QListWidgetItem* item = lstContents->currentItem();
    if (item != nullptr && item->data(Qt::UserRole).isValid())
        txtTopic->setSource(TopicUrl(item->data(Qt::UserRole).toInt()));
}

void HelpForm::ShowContents()
{
    txtSearch->clear();
    txtTopic->setSource(TopicUrl(help_topics::contents));
}

void HelpForm::Follow(const QUrl& link)
{
    if (TopicOf(link) >= 0)
        txtTopic->setSource(link);
    else if (link.scheme() == QLatin1String("http") || link.scheme() == QLatin1String("https"))
        m_shell.OpenWithShell(FromQt(link.toString()));
}

bool HelpForm::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        BelongToFrontDialog();
    return QDialog::event(event);
}

void HelpForm::BelongToFrontDialog()
{
    // A modal dialog blocks every window but those that belong to it. One that belongs to the help
    // itself may block it.
    QWindow* dialog = QGuiApplication::modalWindow();
    if (dialog != nullptr && windowHandle()->isAncestorOf(dialog))
        return;
    windowHandle()->setTransientParent(dialog);
    if (dialog != nullptr)
        connect(dialog, &QWindow::visibleChanged, this, &HelpForm::BelongToFrontDialog,
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
}

} // namespace orvane
