#include "program/all_effects_form.h"

#include "core/catalogue.h"
#include "core/file_names.h"
#include "preview/page_pane_panel.h"
#include "preview/qt_preview_pane.h"
#include "windows/controls.h"
#include "windows/qt_text.h"
#include "windows/remember_place.h"
#include "windows/shared_folder.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

namespace {

constexpr std::string_view linkOfPage = "<A HREF=\"#";
constexpr TextView missingNote =
    u"The page with all effects is missing: it belongs beside the program, and was not installed.";

} // namespace

AllEffectsForm::AllEffectsForm(Workbench& bench, QWidget* pane, QWidget* parent)
    : QDialog(parent),
      m_bench(bench),
      m_file(FromQt(SharedFolder(QStringLiteral("effects/index.html"))))
{
    setObjectName(QStringLiteral("AllEffects"));
    setWindowTitle(QStringLiteral("All effects"));
    auto* lines = new QVBoxLayout(this);
    auto* panel = new PagePanePanel(bench, pane);
    lines->addWidget(panel, 1);
    auto* buttons = new QDialogButtonBox;
    QPushButton* outside = MakeButton("cmdShowInBrowser", u"&Show in your browser");
    QPushButton* close = MakeButton("cmdClose", u"&Close");
    buttons->addButton(outside, QDialogButtonBox::ActionRole);
    buttons->addButton(close, QDialogButtonBox::RejectRole);
    lines->addWidget(buttons);
    connect(outside, &QPushButton::clicked, this, [this] { m_bench.Shell.OpenWithShell(m_file); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (const auto* view = qobject_cast<QtPreviewPane*>(pane))
        connect(view, &QtPreviewPane::OwnLinkFollowed, this, &AllEffectsForm::Follow);
    panel->Show(Page());
    close->setDefault(true);
    resize(980, 720);
    RememberPlace(*this, bench.Settings);
    OpenHelpOnF1(this, bench.Help, help_topics::mainWindow);
}

/// The page, where the names of effects are links that the pane knows.
LivePage AllEffectsForm::Page() const
{
    auto bytes = m_bench.Files.Read(m_file);
    LivePage page;
    page.Name = GetFileName(m_file);
    page.Folder = FolderOf(m_file);
    if (FaultIn(bytes)) {
        page.Note = missingNote;
        return page;
    }
    const std::string ownLink = "<A HREF=\"" + ToUtf8(ownLinkStart);
    std::string linked;
    std::string_view rest = ValueIn(bytes);
    for (std::size_t at; (at = rest.find(linkOfPage)) != rest.npos;) {
        linked.append(rest.substr(0, at)).append(ownLink);
        rest.remove_prefix(at + linkOfPage.size());
    }
    page.Bytes = linked.append(rest);
    return page;
}

void AllEffectsForm::Follow(TextView link)
{
    const auto row = std::ranges::find(Catalogue(), link, &CatalogueRow::Picture);
    if (row == Catalogue().end())
        return;
    m_chosen = row->Kind;
    accept();
}

} // namespace orvane
