// Writes the words that the wizards have for their fields into a table: write_field_labels FILE.
// Runs at build time, without a display, so that the command line program knows them without a
// window.
#include "effects/effect_windows.h"
#include "effects/effects.h"
#include "program/composition.h"
#include "program/qt_dialogs.h"
#include "program/qt_shell.h"
#include "windows/qt_text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QRadioButton>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <set>

namespace {

using namespace orvane;

/// The captions of a group of options, one behind the other.
QString CaptionsOf(const QWidget& wizard, ControlName group)
{
    QStringList captions;
    for (int i = 0; const auto* option = wizard.findChild<QRadioButton*>(MemberName(group, i)); ++i)
        captions += option->text();
    return captions.join(QStringLiteral(" / "));
}

QString LabelIn(const QWidget& wizard, ControlName field)
{
    auto* control = wizard.findChild<QWidget*>(ToQt(field));
    if (control == nullptr)
        return CaptionsOf(wizard, field);
    if (const QLabel* label = LabelOf(control))
        return label->text();
    if (const auto* button = qobject_cast<QAbstractButton*>(control))
        return button->text();
    return control->accessibleName();
}

/// One line of the table for each field that has words.
QString RowsOf(const CatalogueRow& effect, const QWidget& wizard)
{
    QString rows;
    for (const FieldFacts& field : AnyEffect::Fresh(effect.Kind)->Fields())
        if (QString label = SpokenName(FromQt(LabelIn(wizard, field.Name.Name).simplified()));
            !label.isEmpty()) {
            label.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
            rows += QStringLiteral("    {\"%1\", \"%2\", u\"%3\"},\n")
                        .arg(ToQt(effect.Form), ToQt(field.Name.Name), label);
        }
    return rows;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir home;
    const Text folder = FromQt(home.path());
    PosixCalls calls;
    Disk disk(calls, {folder, folder, folder});
    QtDialogs dialogs(disk.Settings);
    QtShell shell;
    QtClipboard clipboard;
    Composition program({folder, folder, folder}, disk,
                        {.Dialogs = dialogs,
                         .Shell = shell,
                         .Clipboard = clipboard,
                         .Version = {},
                         .Today = [] { return Text(); },
                         .Clock = [] { return 0.0; }});
    QString table;
    std::set<ControlName> forms; // several effects share one
    for (const CatalogueRow& row : Catalogue())
        if (const auto wizard = MakeWizard(row.Kind, program.Bench);
            wizard != nullptr && forms.insert(row.Form).second)
            table += RowsOf(row, *wizard);
    QFile file(QApplication::arguments().value(1));
    const QByteArray code =
        "#include \"program/cli_field_labels.h\"\n\nnamespace orvane {\n\nnamespace {\n\n"
        "constexpr struct\n{\n    ControlName Form;\n    ControlName Field;\n    TextView Label;\n"
        "} rows[] = {\n" +
        table.toUtf8() +
        "};\n\n} // namespace\n\nTextView FieldLabel(ControlName form, ControlName field)\n{\n"
        "    for (const auto& row : rows)\n"
        "        if (row.Form == form && row.Field == field)\n"
        "            return row.Label;\n    return {};\n}\n\n} // namespace orvane\n";
    if (!file.open(QIODevice::WriteOnly) || file.write(code) != code.size()) {
        std::fputs("write_field_labels: the table cannot be written\n", stderr);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
