#pragma once

#include "core/text.h"

#include <QLabel>
#include <QLineEdit>

#include <initializer_list>
#include <span>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace orvane {

class ColorSwatch;
class Dialogs;
class HelpViewer;
class NumberBox;
class Settings;

/// The object name of one member of a group of controls, such as "optInsertMode(0)".
QString MemberName(const QString& group, int index);

/// Opens the window's help topic on F1.
void OpenHelpOnF1(QWidget* window, HelpViewer& help, int topic);

/// A file field: locked against typing unless the preferences unlock it; a key typed into a locked
/// one tells the author to use Browse.
class FileNameBox : public QLineEdit
{
    Q_OBJECT

public:
    FileNameBox(const Settings& settings, Dialogs& dialogs, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const Settings& m_settings;
    Dialogs& m_dialogs;
};

/// A label that a click or the keyboard follows like a link.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    LinkLabel(const QString& name, TextView words, QWidget* parent = nullptr);

    void SetWords(TextView words);
    Text Words() const { return m_words; }

signals:
    void Followed();

private:
    Text m_words;
};

/// The row vocabulary of all windows: each call adds one row, in reading order.
class PageBuilder
{
public:
    /// Builds into the layout of `page`, which it makes.
    explicit PageBuilder(QWidget* page);

    QLineEdit* TextBox(const QString& name, TextView label, TextView tip = {});
    QComboBox* ComboBox(const QString& name, TextView label, std::span<const TextView> items,
                        bool isEditable);

    /// A text box with up-down buttons that step a number between the two bounds.
    orvane::NumberBox* NumberBox(const QString& name, TextView label, int lowest, int highest);

    /// A field that shows `caption` until a colour is picked.
    orvane::ColorSwatch* ColorSwatch(const QString& name, TextView label, Dialogs& dialogs,
                                     TextView tip = u"Click here to select a color",
                                     TextView caption = u"Click to Select Color");

    QListWidget* ListBox(const QString& name, TextView label, std::span<const TextView> items);
    QCheckBox* CheckBox(const QString& name, TextView caption);

    /// One option of a group, with a description beside it that selects it as well, and with a
    /// picture of the program's resources, such as "sample_date".
    QRadioButton* Option(const QString& group, int index, TextView caption,
                         TextView description = {}, const QString& picture = {});

    /// A read-only box of page code.
    QPlainTextEdit* CodeBox(const QString& name, TextView accessibleName);

    /// A paragraph of words.
    QLabel* Note(TextView words, const QString& name = {});

    /// A picture of the program's resources, such as "status_bar_sample".
    QLabel* Picture(const QString& name, QSize size);

    /// A button, to be put into a row.
    QPushButton* Button(const QString& name, TextView caption);

    /// A row of buttons, as wide as their captions.
    void Buttons(std::initializer_list<QPushButton*> buttons);

    /// Any widgets in one row under a label, which it gives (null when it has no words); the first
    /// one takes the room.
    QLabel* Row(TextView label, std::initializer_list<QWidget*> widgets);

    /// A framed group with a caption; the returned builder adds to it.
    PageBuilder Frame(TextView caption);

    /// A row that takes the room that is left, or a stretch of nothing when null.
    void Fill(QWidget* widget = nullptr);

    QWidget* Page() const { return m_page; }

private:
    QWidget* m_page;
    QFormLayout* m_rows;
};

} // namespace orvane
