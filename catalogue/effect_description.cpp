#include "catalogue/effect_description.h"

#include "catalogue/effect_button.h"
#include "windows/link_label.h"
#include "windows/qt_text.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

namespace orvane {

namespace {

constexpr TextView welcome =
    u"Point at one of the fifty pictures to read what its effect does; click it to make one for "
    u"your Web page. To find an effect, just type what you are looking for (Ctrl+F). Ctrl+D on an "
    u"effect keeps it among your favorites.";

/// Words that are not measured: they take the room that there is.
class FittingWords : public QLabel
{
public:
    FittingWords()
    {
        setWordWrap(true);
        setAlignment(Qt::AlignTop);
    }
    QSize sizeHint() const override { return {}; }
    QSize minimumSizeHint() const override { return {}; }
    bool hasHeightForWidth() const override { return false; }
};

} // namespace

EffectDescription::EffectDescription()
    : Label3(new QLabel),
      Label2(new QLabel),
      m_greeting(new QLabel(QStringLiteral("Welcome to Orvane"))),
      m_welcome(new FittingWords),
      m_ways(new QHBoxLayout)
{
    Label3->setObjectName(QStringLiteral("Label3"));
    Label2->setObjectName(QStringLiteral("Label2"));
    Label2->setWordWrap(true);
    Label2->setAlignment(Qt::AlignTop);
    m_welcome->setObjectName(QStringLiteral("lblWelcome"));
    // Room for the longest description whatever is shown, so that the window stays still under the
    // mouse.
    Label2->setMinimumHeight(3 * Label2->fontMetrics().lineSpacing());
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins({});
    rows->addWidget(Label3, 0, 0);
    rows->addWidget(Label2, 1, 0, 1, 2);
    rows->addWidget(m_greeting, 0, 0);
    rows->addWidget(m_welcome, 1, 0, 1, 2);
    rows->addLayout(m_ways, 0, 1);
    rows->setColumnStretch(0, 1);
    m_ways->setSpacing(m_ways->spacing() * 2);
    Show(nullptr);
}

void EffectDescription::Show(const EffectButton* button)
{
    // The first window waits for no second font.
    if (QFont bold = Label3->font(); button != nullptr && !bold.bold()) {
        bold.setBold(true);
        Label3->setFont(bold);
    }
    Label3->setText(button == nullptr ? QString() : ToQt(button->Row().Title));
    Label2->setText(button == nullptr ? QString() : ToQt(button->Row().Description));
    m_greeting->setVisible(button == nullptr);
    m_welcome->setText(button == nullptr ? ToQt(welcome) : QString());
}

LinkLabel* EffectDescription::AddWay(ControlName name, TextView words, TextView tip)
{
    auto* way = new LinkLabel(name, words);
    way->setToolTip(ToQt(tip));
    m_ways->addWidget(way);
    return way;
}

} // namespace orvane
