#include "program/qt_dialogs.h"

#include "core/file_names.h"
#include "program/progress_box.h"
#include "program/words_box.h"
#include "services/folder_memory.h"
#include "windows/controls.h"
#include "windows/focus_back.h"
#include "windows/qt_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDir>
#include <QFileInfo>
#include <QFontDialog>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace orvane {

namespace {

/// The window in front, over which a box or dialog shall stand. It owns the box, so a window that
/// closes by itself, as one of a previewed page may, is passed over.
QWidget* WindowInFront()
{
    QWidget* window = QApplication::activeWindow();
    if (window == nullptr)
        window = QApplication::activeModalWidget();
    while (window != nullptr && window->testAttribute(Qt::WA_DeleteOnClose))
        window = window->parentWidget() == nullptr ? nullptr : window->parentWidget()->window();
    return window;
}

/// Shows a box or dialog until the author has answered; true when it was accepted. Only the author
/// is waited for then, so no wait pointer stands over it.
bool Run(QDialog& dialog)
{
    std::vector<QCursor> waiting;
    for (; QApplication::overrideCursor() != nullptr; QApplication::restoreOverrideCursor())
        waiting.push_back(*QApplication::overrideCursor());
    GiveFocusBack(dialog);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    for (; !waiting.empty(); waiting.pop_back())
        QApplication::setOverrideCursor(waiting.back());
    return isAccepted;
}

std::optional<bool> AskWith(TextView words, TextView title,
                            QDialogButtonBox::StandardButtons buttons)
{
    WordsBox box(words, title, buttons, WindowInFront());
    box.ShowIcon(QStyle::SP_MessageBoxQuestion);
    Run(box);
    if (box.Pressed() == QDialogButtonBox::Yes)
        return true;
    if (box.Pressed() == QDialogButtonBox::No)
        return false;
    return std::nullopt;
}

/// "*.html;*.htm" gives "html"; "*.*" gives nothing.
QString FirstExtension(const QString& nameFilter)
{
    const qsizetype mask = nameFilter.lastIndexOf(QLatin1String("(*."));
    if (mask < 0)
        return {};
    const QString masks = nameFilter.mid(mask + 3).chopped(1);
    return masks.section(u' ', 0, 0);
}

std::optional<Text> FirstOf(const QStringList& paths)
{
    return paths.isEmpty() ? std::nullopt : std::optional(FromQt(paths.constFirst()));
}

} // namespace

QString QtNameFilter(TextView label, TextView masks)
{
    QString words = ToQt(label);
    if (const qsizetype bracket = words.lastIndexOf(u'('); bracket > 0)
        words.truncate(bracket);
    // The toolkit's "*.*" leaves out names without a dot.
    const QString patterns =
        masks == u"*.*" ? QStringLiteral("*") : ToQt(masks).replace(u';', u' ');
    return QStringLiteral("%1 (%2)").arg(words.trimmed(), patterns);
}

QStringList QtNameFilters(TextView filter)
{
    QStringList filters;
    while (!filter.empty()) {
        const TextView label = TakeUntil(filter, u'|');
        if (!filter.empty())
            filters += QtNameFilter(label, TakeUntil(filter, u'|'));
    }
    return filters;
}

void QtDialogs::Say(TextView words, Tone tone)
{
    WordsBox box(words, u"Orvane", QDialogButtonBox::Ok, WindowInFront());
    if (tone == Tone::Exclamation)
        box.ShowIcon(QStyle::SP_MessageBoxWarning);
    Run(box);
}

bool QtDialogs::Ask(TextView words, TextView title)
{
    return AskWith(words, title, QDialogButtonBox::Yes | QDialogButtonBox::No).value_or(false);
}

std::optional<bool> QtDialogs::AskOrCancel(TextView words, TextView title)
{
    return AskWith(words, title,
                   QDialogButtonBox::Yes | QDialogButtonBox::No | QDialogButtonBox::Cancel);
}

std::optional<Text> QtDialogs::OpenFile(const FileRequest& request)
{
    return FirstOf(PickFiles(request, QFileDialog::ExistingFile));
}

std::vector<Text> QtDialogs::OpenFiles(const FileRequest& request)
{
    std::vector<Text> paths;
    for (const QString& path : PickFiles(request, QFileDialog::ExistingFiles))
        paths.push_back(FromQt(path));
    std::ranges::sort(paths, ComesBefore);
    return paths;
}

std::optional<Text> QtDialogs::SaveFile(const FileRequest& request)
{
    return FirstOf(PickFiles(request, QFileDialog::AnyFile));
}

QString QtDialogs::StartFolder(const FileRequest& request) const
{
    for (const QString& folder :
         {ToQt(request.InitDir), ToQt(RememberedFolder(m_settings, request.Purpose)), m_lastFolder})
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    return QDir::homePath();
}

/// Asks for a file to save under in the mode AnyFile, for files to open in any other; empty on
/// Cancel.
QStringList QtDialogs::PickFiles(const FileRequest& request, QFileDialog::FileMode mode)
{
    const bool isSave = mode == QFileDialog::AnyFile;
    QFileDialog dialog(WindowInFront(), ToQt(request.Title), StartFolder(request));
    dialog.setAcceptMode(isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(mode);
    const QStringList filters = QtNameFilters(request.Filter);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(request.FilterIndex - 1));
    if (isSave) {
        // A name without an extension gets that of the chosen kind, before the dialog looks whether
        // such a file is there already.
        dialog.setDefaultSuffix(FirstExtension(dialog.selectedNameFilter()));
        QObject::connect(
            &dialog, &QFileDialog::filterSelected, &dialog,
            [&](const QString& filter) { dialog.setDefaultSuffix(FirstExtension(filter)); });
    }
    if (!request.FileName.empty())
        dialog.selectFile(ToQt(request.FileName));
    if (!Run(dialog) || dialog.selectedFiles().isEmpty())
        return {};
    const QStringList paths = dialog.selectedFiles();
    m_lastFolder = QFileInfo(paths.constFirst()).absolutePath();
    RememberFolder(m_settings, request.Purpose, FromQt(m_lastFolder));
    return paths;
}

std::optional<Text> QtDialogs::PickFolder(TextView title, TextView start)
{
    QFileDialog dialog(WindowInFront(), ToQt(title), StartFolder({.InitDir = Text(start)}));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (!Run(dialog) || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FromQt(QDir(dialog.selectedFiles().constFirst()).absolutePath());
}

std::optional<std::int32_t> QtDialogs::PickColor()
{
    QColorDialog dialog(WindowInFront());
    if (!Run(dialog))
        return std::nullopt;
    const QColor color = dialog.currentColor();
    return color.blue() << 16 | color.green() << 8 | color.red();
}

FontChoice QtDialogs::PickFont(const FontChoice& start)
{
    QFont font(ToQt(start.Name));
    if (const double size = ToQt(start.Size).toDouble(); size > 0)
        font.setPointSizeF(size);
    font.setBold(start.Bold);
    font.setItalic(start.Italic);
    QFontDialog dialog(font, WindowInFront());
    if (!Run(dialog))
        return start;
    const QFont chosen = dialog.selectedFont();
    return {.Name = FromQt(chosen.family()),
            .Size = FromQt(QString::number(chosen.pointSize())),
            .Bold = chosen.bold(),
            .Italic = chosen.italic()};
}

std::unique_ptr<Progress> QtDialogs::FollowWork(TextView words)
{
    return std::make_unique<ProgressBox>(words, WindowInFront());
}

PageBoxReply QtDialogs::Answer(const PageBox& box)
{
    WordsBox dialog(box.Words, u"Orvane preview",
                    box.Shape == PageBox::Kind::Alert
                        ? QDialogButtonBox::Ok
                        : QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                    WindowInFront());
    dialog.setObjectName(QStringLiteral("PageBox"));
    auto* entry = new QLineEdit(ToQt(box.Proposed));
    entry->setObjectName("txtEntry");
    entry->setAccessibleName(ToQt(box.Words));
    entry->setVisible(box.Shape == PageBox::Kind::Prompt);
    dialog.Below().addWidget(entry);
    if (box.Shape == PageBox::Kind::Prompt)
        entry->setFocus();
    auto* stop = new QCheckBox(QStringLiteral("&Show no more boxes of this page"));
    stop->setObjectName("chkStop");
    stop->setVisible(box.OffersStop);
    dialog.Below().addWidget(stop);
    SetReadingOrder(dialog);
    const bool isAccepted = Run(dialog);
    return {.Accepted = isAccepted, .Entered = FromQt(entry->text()), .Stop = stop->isChecked()};
}

} // namespace orvane
