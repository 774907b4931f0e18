#include "program/qt_dialogs.h"

#include "windows/qt_text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QVBoxLayout>

namespace orvane {

namespace {

QWidget* WindowInFront()
{
    return QApplication::activeWindow();
}

/// A message box in plain text, so that no word of a page or a file name is read as markup.
void Fill(QMessageBox& box, TextView words, TextView title)
{
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQtLines(words));
    box.setWindowTitle(ToQt(title));
}

std::optional<bool> AskWith(TextView words, TextView title, QMessageBox::StandardButtons buttons,
                            QMessageBox::StandardButton escape)
{
    QMessageBox box(WindowInFront());
    Fill(box, words, title);
    box.setIcon(QMessageBox::Question);
    box.setStandardButtons(buttons);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(escape);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return true;
    case QMessageBox::No:
        return false;
    default:
        return std::nullopt;
    }
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
        const std::size_t bar = filter.find(u'|');
        if (bar == TextView::npos)
            break;
        const std::size_t next = filter.find(u'|', bar + 1);
        filters += QtNameFilter(filter.substr(0, bar), filter.substr(bar + 1, next - bar - 1));
        filter = next == TextView::npos ? TextView() : filter.substr(next + 1);
    }
    return filters;
}

void QtDialogs::Say(TextView words, Tone tone)
{
    QMessageBox box(WindowInFront());
    orvane::Fill(box, words, u"Orvane");
    box.setIcon(tone == Tone::Exclamation ? QMessageBox::Warning : QMessageBox::NoIcon);
    box.exec();
}

bool QtDialogs::Ask(TextView words, TextView title)
{
    return AskWith(words, title, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        .value_or(false);
}

std::optional<bool> QtDialogs::AskOrCancel(TextView words, TextView title)
{
    return AskWith(words, title, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                   QMessageBox::Cancel);
}

std::optional<Text> QtDialogs::OpenFile(const FileRequest& request)
{
    return PickFile(request, false);
}

std::optional<Text> QtDialogs::SaveFile(const FileRequest& request)
{
    return PickFile(request, true);
}

QString QtDialogs::StartFolder(TextView wanted) const
{
    for (const QString& folder : {ToQt(wanted), m_lastFolder})
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    return QDir::homePath();
}

std::optional<Text> QtDialogs::PickFile(const FileRequest& request, bool isSave)
{
    QFileDialog dialog(WindowInFront(), ToQt(request.Title), StartFolder(request.InitDir));
    dialog.setAcceptMode(isSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(isSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
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
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    m_lastFolder = QFileInfo(path).absolutePath();
    return FromQt(path);
}

std::optional<Text> QtDialogs::PickFolder(TextView title, TextView start)
{
    QFileDialog dialog(WindowInFront(), ToQt(title), StartFolder(start));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FromQt(QDir(dialog.selectedFiles().constFirst()).absolutePath());
}

std::optional<std::int32_t> QtDialogs::PickColor()
{
    QColorDialog dialog(WindowInFront());
    if (dialog.exec() != QDialog::Accepted)
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
    if (dialog.exec() != QDialog::Accepted)
        return start;
    const QFont chosen = dialog.selectedFont();
    return {.Name = FromQt(chosen.family()),
            .Size = FromQt(QString::number(chosen.pointSize())),
            .Bold = chosen.bold(),
            .Italic = chosen.italic()};
}

PageBoxReply QtDialogs::Answer(const PageBox& box)
{
    QDialog dialog(WindowInFront());
    dialog.setObjectName(QStringLiteral("PageBox"));
    dialog.setWindowTitle(QStringLiteral("Orvane preview"));
    auto* all = new QVBoxLayout(&dialog);
    auto* words = new QLabel(ToQtLines(box.Words));
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setMinimumWidth(320);
    all->addWidget(words);
    auto* entry = new QLineEdit(ToQt(box.Proposed));
    entry->setAccessibleName(ToQt(box.Words));
    entry->setVisible(box.Shape == PageBox::Kind::Prompt);
    all->addWidget(entry);
    auto* stop = new QCheckBox(QStringLiteral("&Show no more boxes of this page"));
    stop->setVisible(box.OffersStop);
    all->addWidget(stop);
    auto* buttons = new QDialogButtonBox(box.Shape == PageBox::Kind::Alert
                                             ? QDialogButtonBox::Ok
                                             : QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    all->addWidget(buttons);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    return {.Accepted = isAccepted, .Entered = FromQt(entry->text()), .Stop = stop->isChecked()};
}

} // namespace orvane
