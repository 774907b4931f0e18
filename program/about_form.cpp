#include "program/about_form.h"

#include "windows/page_builder.h"
#include "windows/qt_text.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace orvane {

namespace {

QLabel* AddWords(QDialog* window, TextView words, const QString& name = {})
{
    auto* label = new QLabel(ToQt(words), window);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter);
    window->layout()->addWidget(label);
    return label;
}

void AddLink(QDialog* window, ControlName name, TextView words, TextView address, Shell& shell)
{
    auto* link = new LinkLabel(name, words, window);
    link->setAlignment(Qt::AlignHCenter);
    QObject::connect(link, &LinkLabel::Followed, window,
                     [&shell, target = Text(address)] { shell.OpenWithShell(target); });
    window->layout()->addWidget(link);
}

void AddButton(QDialog* window, ControlName name, TextView caption)
{
    QPushButton* button = MakeButton(name, caption);
    window->layout()->addWidget(button);
    window->layout()->setAlignment(button, Qt::AlignRight);
    button->setDefault(true);
    button->setFocus();
    QObject::connect(button, &QPushButton::clicked, window, &QDialog::accept);
}

} // namespace

AboutForm::AboutForm(Workbench& bench, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("About"));
    setWindowTitle(QStringLiteral("About Orvane"));
    new QVBoxLayout(this);
    auto* picture = new QWidget(this);
    PageBuilder(picture).Picture(QStringLiteral("orvane"), {96, 96});
    layout()->addWidget(picture);
    setMinimumWidth(360);
    AddWords(this, Join({u"Version ", bench.Version, u" for Windows 95/98/NT/ME/2000/XP"}),
             QStringLiteral("lblVersionInfo"));
    AddLink(this, "lblLink", MakerSiteURL, MakerSiteURL, bench.Shell);
    AddButton(this, "cmdOK", u"&OK");
    OpenHelpOnF1(this, bench.Help, help_topics::contents);
}

DownloadForm::DownloadForm(Workbench& bench, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("DownloadOV"));
    setWindowTitle(QStringLiteral("Orvane"));
    new QVBoxLayout(this);
    AddWords(this, u"Get the Netscape version of Orvane, or a newer browser, from these pages.  "
                   u"Then start Orvane again.");
    AddLink(this, "lblDownloadOrvane", u"Download the Netscape version of Orvane", ProductPageURL,
            bench.Shell);
    AddLink(this, "lblDownloadBrowser", u"Download Internet Explorer", MakerSiteURL, bench.Shell);
    AddButton(this, "cmdClose", u"&Close");
}

} // namespace orvane
