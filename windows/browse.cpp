#include "windows/browse.h"

#include "core/file_names.h"
#include "services/c_file.h"
#include "windows/picked_files.h"
#include "windows/qt_text.h"

#include <QLineEdit>
#include <QPushButton>

namespace orvane {

namespace {

/// The dialog of the rule, for one browse.
CFile FileOf(Workbench& bench, const BrowseRule& rule)
{
    CFile file(bench.Dialogs, bench.Core.CommonDialog);
    file.DialogTitle = rule.Request.Title;
    file.Filter = rule.Request.Filter;
    file.FilterIndex = static_cast<std::int16_t>(rule.Request.FilterIndex);
    file.InitDir = rule.Folder != nullptr ? bench.Core.*rule.Folder : rule.Request.InitDir;
    file.Purpose = rule.Request.Purpose;
    file.Filename = rule.Request.FileName;
    return file;
}

void Browse(Workbench& bench, QLineEdit& field, const BrowseRule& rule)
{
    CFile file = FileOf(bench, rule);
    const Done browsed = file.Browse();
    if (const Fault* fault = FaultIn(browsed))
        return bench.Dialogs.Say(Words(*fault));
    const Text& path = file.PathAndFilename;
    if (path.empty() || (rule.Admits && !rule.Admits(path)))
        return;
    if (rule.Instead)
        return rule.Instead(path);
    if (rule.NoBlanks)
        if (const auto complaint = CheckNoBlank(file.Filename, *rule.NoBlanks))
            return bench.Dialogs.Say(complaint->Words);
    if (rule.Folder != nullptr)
        bench.Core.*rule.Folder = FolderOf(path);
    const Text window = FromQt(field.window()->windowTitle());
    field.setText(ToQt(rule.KeepsPath ? path : RelativePrefix(window, file.Path) + file.Filename));
    RememberPicked(field, path);
    if (rule.Source != nullptr)
        *rule.Source = path;
    if (rule.GivesFocus)
        field.setFocus(Qt::OtherFocusReason);
    if (rule.Then)
        rule.Then(path);
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
