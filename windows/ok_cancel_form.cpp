#include "windows/ok_cancel_form.h"

#include "windows/focus_back.h"
#include "windows/qt_text.h"
#include "windows/remember_place.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

OkCancelForm::OkCancelForm(ControlName name, TextView title, int helpTopic, Workbench& bench,
                           QWidget* parent)
    : QDialog(parent), m_bench(bench), m_rows(new QWidget(this), &bench)
{
    setObjectName(ToQt(name));
    setWindowTitle(ToQt(title));
    setModal(true);
    RememberPlace(*this, bench.Settings);
    auto* all = new QVBoxLayout(this);
    all->addWidget(m_rows.Page(), 1);
    m_rows.Page()->layout()->setContentsMargins({});
    OpenHelpOnF1(this, bench.Help, helpTopic);
}

void OkCancelForm::AddButtons(TextView okCaption)
{
    QPushButton* ok = MakeButton("cmdOK", okCaption);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] { Accept(); });
    QPushButton* cancel = MakeButton("cmdCancel", u"&Cancel");
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* line = new QHBoxLayout;
    line->addStretch(1);
    line->addWidget(ok);
    line->addWidget(cancel);
    static_cast<QVBoxLayout*>(layout())->addLayout(line);
    SetReadingOrder(*this);
}

void OkCancelForm::Begin(std::function<void()> then)
{
    setAttribute(Qt::WA_DeleteOnClose);
    connect(this, &QDialog::accepted, this, std::move(then));
    GiveFocusBack(*this);
    open();
}

} // namespace orvane
