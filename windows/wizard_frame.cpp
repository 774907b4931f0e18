#include "windows/wizard_frame.h"

#include "windows/page_area.h"
#include "windows/qt_text.h"
#include "windows/remember_place.h"
#include "windows/side_pane.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace orvane {

namespace {

QLabel* MakeHeading(ControlName name, double scale)
{
    auto* label = new QLabel;
    label->setObjectName(ToQt(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setBold(scale > 1);
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    return label;
}

} // namespace

WizardFrame::WizardFrame(ControlName name, Workbench& bench, QWidget* parent)
    : QDialog(parent),
      m_bench(bench),
      lblHeading(MakeHeading("lblHeading", 1.2)),
      lblSubHeading(MakeHeading("lblSubHeading", 1)),
      m_offers(new QWidget),
      m_pages(new QStackedWidget),
      m_note(new StatusNote(this))
{
    setObjectName(ToQt(name));
    setModal(true);
    RememberPlace(*this, bench.Settings);
    auto* all = new QVBoxLayout(this);
    all->addWidget(lblHeading);
    all->addWidget(lblSubHeading);
    all->addWidget(m_offers);
    (new QVBoxLayout(m_offers))->setContentsMargins({});
    all->addWidget(m_pages, 1);
    auto* helpKey = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(helpKey, &QShortcut::activated, this, [this] { m_bench.Help.ShowTopic(m_helpTopic); });
}

QWidget* WizardFrame::AddPanel(const QString& name)
{
    auto* panel = new QWidget;
    panel->setObjectName(name);
    m_pages->addWidget(new PageArea(panel));
    return panel;
}

LinkLabel* WizardFrame::AddOffer(ControlName name, TextView words)
{
    auto* offer = new LinkLabel(name, words);
    offer->hide();
    m_offers->layout()->addWidget(offer);
    SetReadingOrder(*this);
    return offer;
}

QPushButton* WizardFrame::AddButton(ControlName name, TextView caption, QHBoxLayout* line)
{
    QPushButton* button = MakeButton(name, caption);
    line->addWidget(button);
    return button;
}

void WizardFrame::AddButtons(Buttons buttons, ControlName helpName)
{
    auto* line = m_buttons = new QHBoxLayout;
    QPushButton* help = AddButton(helpName, u"Click here for help", line);
    connect(help, &QPushButton::clicked, this, [this] { m_bench.Help.ShowTopic(m_helpTopic); });
    line->addWidget(m_note, 1);
    if (buttons == Buttons::Paged) {
        cmdPrevious = AddButton("cmdPrevious", u"<< &Previous", line);
        connect(cmdPrevious, &QPushButton::clicked, this, [this] { Previous(); });
        cmdNext = AddButton("cmdNext", u"&Next >>", line);
    } else {
        cmdNext = AddButton("cmdDone", u"&Done", line);
    }
    cmdNext->setDefault(true);
    // Pressed by its key it acts a moment later, when the window may have gone on by another key.
    connect(cmdNext, &QPushButton::clicked, this, [this] {
        if (cmdNext->isEnabled() && isVisible())
            Next();
    });
    cmdCancel = AddButton("cmdCancel", u"&Cancel", line);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    SetReadingOrder(*this);
    FitToRows();
}

void WizardFrame::AddBesideHelp(QPushButton* button)
{
    m_buttons->insertWidget(1, button);
    SetReadingOrder(*this);
}

void WizardFrame::AddSide(QWidget* side)
{
    QPushButton* fold =
        MakeButton("cmdFoldPreview", u"Pre&view", u"Shows the effect as you make it (F12)");
    fold->setAutoDefault(false);
    AddBesideHelp(fold);
    auto* content = new QWidget;
    content->setLayout(layout());
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins({});
    auto* pane = new SidePane(content, side, fold, m_bench.Settings);
    all->addWidget(pane);
    connect(pane, &SidePane::NoRoom, this, [this] { Tell(u"The preview needs a wider screen."); });
    SetReadingOrder(*this);
    pane->WidenWindow();
}

/// As large as all rows of all pages want it, as far as the screen has room.
void WizardFrame::FitToRows()
{
    ensurePolished();
    QSize wanted = sizeHint();
    if (hasHeightForWidth())
        wanted.setHeight(heightForWidth(wanted.width()));
    resize(wanted.boundedTo(screen()->availableSize() * 0.9));
}

void WizardFrame::ShowPanel(int index)
{
    m_pages->setCurrentIndex(index);
    m_offers->setVisible(index == 0);
}

int WizardFrame::CurrentPanel() const
{
    return m_pages->currentIndex();
}

int WizardFrame::PanelCount() const
{
    return m_pages->count();
}

QWidget* WizardFrame::PanelAt(int index) const
{
    return m_pages->widget(index);
}

void WizardFrame::SetHeading(TextView heading, TextView subHeading)
{
    lblHeading->setText(ToQt(heading));
    lblSubHeading->setText(ToQt(subHeading));
}

} // namespace orvane
