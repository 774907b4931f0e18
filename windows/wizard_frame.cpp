#include "windows/wizard_frame.h"

#include "windows/qt_text.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace orvane {

namespace {

QLabel* MakeHeading(const QString& name, double scale)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setBold(scale > 1);
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    return label;
}

} // namespace

QSize FromTwips(int width, int height)
{
    constexpr int twipsPerPixel = 15;
    return {width / twipsPerPixel, height / twipsPerPixel};
}

WizardFrame::WizardFrame(const QString& name, Workbench& bench, QWidget* parent)
    : QDialog(parent),
      m_bench(bench),
      lblHeading(MakeHeading(QStringLiteral("lblHeading"), 1.2)),
      lblSubHeading(MakeHeading(QStringLiteral("lblSubHeading"), 1)),
      m_pages(new QStackedWidget)
{
    setObjectName(name);
    setModal(true);
    auto* all = new QVBoxLayout(this);
    all->addWidget(lblHeading);
    all->addWidget(lblSubHeading);
    all->addWidget(m_pages, 1);
    auto* helpKey = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(helpKey, &QShortcut::activated, this, [this] { m_bench.Help.ShowTopic(m_helpTopic); });
}

QWidget* WizardFrame::AddPanel(const QString& name)
{
    auto* panel = new QWidget;
    panel->setObjectName(name);
    m_pages->addWidget(panel);
    return panel;
}

QPushButton* WizardFrame::MakeButton(const QString& name, TextView caption, QHBoxLayout* line)
{
    auto* button = new QPushButton(ToQt(caption), this);
    button->setObjectName(name);
    button->setAutoDefault(true);
    line->addWidget(button);
    return button;
}

void WizardFrame::AddButtons(Buttons buttons, const QString& helpName)
{
    auto* line = new QHBoxLayout;
    QPushButton* help = MakeButton(helpName, u"Click here for help", line);
    connect(help, &QPushButton::clicked, this, [this] { m_bench.Help.ShowTopic(m_helpTopic); });
    line->addStretch(1);
    if (buttons == Buttons::Paged) {
        cmdPrevious = MakeButton(QStringLiteral("cmdPrevious"), u"<< &Previous", line);
        connect(cmdPrevious, &QPushButton::clicked, this, [this] { Previous(); });
        cmdNext = MakeButton(QStringLiteral("cmdNext"), u"&Next >>", line);
    } else {
        cmdNext = MakeButton(QStringLiteral("cmdDone"), u"&Done", line);
    }
    cmdNext->setDefault(true);
    connect(cmdNext, &QPushButton::clicked, this, [this] { Next(); });
    cmdCancel = MakeButton(QStringLiteral("cmdCancel"), u"&Cancel", line);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
}

void WizardFrame::ShowPanel(int index)
{
    m_pages->setCurrentIndex(index);
}

int WizardFrame::CurrentPanel() const
{
    return m_pages->currentIndex();
}

void WizardFrame::SetHeading(TextView heading, TextView subHeading)
{
    lblHeading->setText(ToQt(heading));
    lblSubHeading->setText(ToQt(subHeading));
}

void WizardFrame::Report(const Complaint& complaint)
{
    m_bench.Dialogs.Say(complaint.Words, complaint.Look);
    if (auto* control = findChild<QWidget*>(QString::fromStdString(complaint.Control)))
        control->setFocus(Qt::OtherFocusReason);
}

} // namespace orvane
