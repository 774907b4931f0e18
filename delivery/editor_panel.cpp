#include "delivery/editor_panel.h"

#include "services/page_editors.h"
#include "windows/folder_boxes.h"
#include "windows/page_builder.h"
#include "windows/qt_text.h"

namespace orvane {

EditorPanel::EditorPanel() : lstHTMLEditors(new ActingList)
{
    lstHTMLEditors->setObjectName(QStringLiteral("lstHTMLEditors"));
    lstHTMLEditors->setAccessibleName(QStringLiteral("Web page editors"));
    for (const PageEditor& editor : pageEditors)
        lstHTMLEditors->addItem(ToQt(editor.Name));
    PageBuilder(this).Fill(lstHTMLEditors);
    connect(lstHTMLEditors, &QListWidget::itemDoubleClicked, this, &EditorPanel::EditorChosen);
    connect(lstHTMLEditors, &ActingList::Entered, this, &EditorPanel::EditorChosen);
}

void EditorPanel::PageShown()
{
    lstHTMLEditors->setFocus();
}

void EditorPanel::Keep(Settings& settings) const
{
    // A row that only has the focus was not chosen.
    const int row = lstHTMLEditors->SelectedRow();
    if (row >= 0 && settings.Get(settingKeys::webPageEditor).empty())
        settings.Put(settingKeys::webPageEditor, pageEditors[static_cast<std::size_t>(row)].Name);
}

} // namespace orvane
