#include "reedit/edit_applet_form.h"

#include "reedit/applet_tag.h"
#include "windows/multi_line_box.h"
#include "windows/page_builder.h"
#include "windows/remember_place.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace orvane {

namespace {

/// A wizard that makes tags for the animation applet.
struct AnimationChoice
{
    const char* Name;
    const char* Caption;
};

/// In the order of animationWizards.
constexpr std::array<AnimationChoice, animationWizards.size()> animationChoices = {{
    {"optAdvancedAnimationAppletWizard", "Advanced Animation applet Wizard"},
    {"optAnimationWizard", "Animation Wizard"},
    {"optBillboardWizard", "Billboard Wizard"},
}};

} // namespace

EditAppletForm::EditAppletForm(Workbench& bench, QWidget* parent)
    : QDialog(parent), m_bench(bench), m_panels(new QStackedWidget(this))
{
    setObjectName(QStringLiteral("EditAppletForm"));
    setWindowTitle(QStringLiteral("Edit Applet"));
    RememberPlace(*this, bench.Settings);
    auto* all = new QVBoxLayout(this);
    all->addWidget(m_panels);
    AddPastePanel();
    AddChoicePanel();
    SetReadingOrder(*this);
    OpenHelpOnF1(this, bench.Help, help_topics::editApplet);
    resize(520, 360);
}

void EditAppletForm::AddPastePanel()
{
    PageBuilder panel = AddPanel();
    panel.Note(u"Paste the HTML code of the applet into the text box below and click the \"Edit\" "
               u"button to edit the applet.  The code must begin with the \"<APPLET>\" tag and end "
               u"with the \"</APPLET>\" tag.");
    Text1 = new MultiLineBox;
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setAccessibleName(QStringLiteral("HTML code of the applet"));
    Text1->setTabChangesFocus(true);
    connect(Text1, &MultiLineBox::TooLarge, this,
            [this] { m_bench.Dialogs.Say(pastedTagTooLarge); });
    panel.Fill(Text1);
    QPushButton* edit = panel.Button("cmdEdit", u"&Edit");
    connect(edit, &QPushButton::clicked, this, &EditAppletForm::Edit);
    QPushButton* cancel = panel.Button("cmdCancel", u"&Cancel");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    QPushButton* help = panel.Button("cmdClickHereForHelp", u"Click here for help");
    connect(help, &QPushButton::clicked, this,
            [this] { m_bench.Help.ShowTopic(help_topics::editApplet); });
    panel.EndButtons({help}, {edit, cancel});
}

void EditAppletForm::AddChoicePanel()
{
    PageBuilder panel = AddPanel();
    panel.Note(u"Please pick the appropriate wizard that you wish to use to re-edit this applet.");
    for (std::size_t i = 0; i < animationChoices.size(); ++i) {
        m_choices[i] = new QRadioButton(QString::fromUtf8(animationChoices[i].Caption));
        m_choices[i]->setObjectName(QString::fromUtf8(animationChoices[i].Name));
        panel.Row({}, {m_choices[i]});
    }
    m_choices[0]->setChecked(true);
    panel.Fill();
    QPushButton* edit = panel.Button("cmdEdit", u"&Edit");
    edit->setDefault(true);
    connect(edit, &QPushButton::clicked, this, &EditAppletForm::EditChosen);
    QPushButton* cancel = panel.Button("cmdCancel", u"&Cancel");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    panel.EndButtons({}, {edit, cancel});
}

PageBuilder EditAppletForm::AddPanel()
{
    auto* panel = new QWidget;
    m_panels->addWidget(panel);
    return PageBuilder(panel);
}

void EditAppletForm::Edit()
{
    OrvaneCore& core = m_bench.Core;
    core.EditMode = true;
    m_tag = TagOf(Text1->Words());
    core.AppletTextAfterCODE = m_tag.AppletTextAfterCODE;
    core.AppletText = m_tag.AppletText;
    const AppletDispatch dispatch = RecognizeApplet(core.AppletTextAfterCODE);
    switch (dispatch.Next) {
    case AppletDispatch::Way::Choice:
        m_panels->setCurrentIndex(1);
        m_choices[0]->setFocus(Qt::OtherFocusReason);
        return;
    case AppletDispatch::Way::Wizard:
        return Open(dispatch.Kind);
    case AppletDispatch::Way::NotRecognized:
        m_bench.Dialogs.Say(appletNotRecognized);
        return reject();
    case AppletDispatch::Way::Nowhere:
        return reject();
    }
}

void EditAppletForm::EditChosen()
{
    for (std::size_t i = 0; i < animationChoices.size(); ++i)
        if (m_choices[i]->isChecked())
            return Open(animationWizards[i]);
}

void EditAppletForm::Open(EffectKind kind)
{
    m_wanted = {kind, m_tag};
    accept();
}

} // namespace orvane
