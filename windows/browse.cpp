#include "windows/browse.h"

#include "core/file_names.h"
#include "windows/picked_files.h"
#include "windows/qt_text.h"

#include <QLineEdit>
#include <QPushButton>

namespace orvane {

namespace {

void Browse(Workbench& bench, QLineEdit& field, const BrowseRule& rule)
{
    FileRequest request = rule.Request;
    if (rule.Folder != nullptr)
        request.InitDir = bench.Core.*rule.Folder;
    const auto path = bench.Dialogs.OpenFile(request);
    if (!path || (rule.Admits && !rule.Admits(*path)))
        return;
    if (rule.Instead)
        return rule.Instead(*path);
    const TextView name = GetFileName(*path);
    if (rule.NoBlanks)
        if (const auto complaint = CheckNoBlank(name, *rule.NoBlanks))
            return bench.Dialogs.Say(complaint->Words);
    if (rule.Folder != nullptr)
        bench.Core.*rule.Folder = FolderOf(*path);
    field.setText(ToQt(rule.KeepsPath ? TextView(*path) : name));
    RememberPicked(field, *path);
    if (rule.Source != nullptr)
        *rule.Source = *path;
    if (rule.GivesFocus)
        field.setFocus(Qt::OtherFocusReason);
    if (rule.Then)
        rule.Then(*path);
}

} // namespace

QPushButton* MakeBrowseButton(Workbench& bench, QLineEdit* field, BrowseRule rule)
{
    QPushButton* button = MakeButton(rule.Button, rule.Caption);
    QObject::connect(button, &QPushButton::clicked, field, [field, &bench, rule = std::move(rule)] {
        Browse(bench, *field, rule);
        field->setFocus(Qt::OtherFocusReason);
    });
    return button;
}

} // namespace orvane
