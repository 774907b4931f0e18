#include "windows/page_builder.h"

#include "core/help_viewer.h"
#include "core/orvane_core.h"
#include "windows/color_swatch.h"
#include "windows/number_box.h"
#include "windows/qt_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

namespace orvane {

namespace {

/// What a screen reader says for a label: without access key and colon.
QString SpokenName(TextView label)
{
    QString spoken = ToQt(label).remove(u'&');
    if (spoken.endsWith(u':'))
        spoken.chop(1);
    return spoken;
}

/// A label's click selects its option, as a click on the option itself would.
class OptionText : public QLabel
{
public:
    OptionText(TextView words, QRadioButton* option, QWidget* parent)
        : QLabel(ToQt(words), parent), m_option(option)
    {
        setWordWrap(true);
        setTextFormat(Qt::PlainText);
        setIndent(24);
    }

protected:
    void mousePressEvent(QMouseEvent*) override { m_option->click(); }

private:
    QRadioButton* m_option;
};

QLabel* MakePicture(const QString& name, QSize size, QWidget* parent)
{
    auto* picture = new QLabel(parent);
    picture->setPixmap(QIcon(QStringLiteral(":/pictures/%1.svg").arg(name))
                           .pixmap(size, parent->devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    return picture;
}

} // namespace

QString MemberName(const QString& group, int index)
{
    return QStringLiteral("%1(%2)").arg(group).arg(index);
}

void OpenHelpOnF1(QWidget* window, HelpViewer& help, int topic)
{
    auto* shortcut = new QShortcut(QKeySequence(Qt::Key_F1), window);
    QObject::connect(shortcut, &QShortcut::activated, window,
                     [&help, topic] { help.ShowTopic(topic); });
}

FileNameBox::FileNameBox(const Settings& settings, Dialogs& dialogs, QWidget* parent)
    : QLineEdit(parent), m_settings(settings), m_dialogs(dialogs)
{
}

void FileNameBox::keyPressEvent(QKeyEvent* event)
{
    const bool types = !event->text().isEmpty() && event->text().at(0).isPrint();
    if (isReadOnly() && types)
        WarnInputBoxLocked(m_settings, m_dialogs);
    else
        QLineEdit::keyPressEvent(event);
}

void FileNameBox::showEvent(QShowEvent* event)
{
    setReadOnly(!AreInputBoxesUnlocked(m_settings));
    QLineEdit::showEvent(event);
}

LinkLabel::LinkLabel(const QString& name, TextView words, QWidget* parent) : QLabel(parent)
{
    setObjectName(name);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setFocusPolicy(Qt::StrongFocus);
    SetWords(words);
    connect(this, &QLabel::linkActivated, this, &LinkLabel::Followed);
}

void LinkLabel::SetWords(TextView words)
{
    m_words = words;
    setAccessibleName(ToQt(words));
    setText(QStringLiteral("<a href=\"#\">%1</a>").arg(ToQt(words).toHtmlEscaped()));
}

PageBuilder::PageBuilder(QWidget* page) : m_page(page), m_rows(new QFormLayout(page))
{
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
}

QLineEdit* PageBuilder::TextBox(const QString& name, TextView label, TextView tip)
{
    auto* box = new QLineEdit(m_page);
    box->setObjectName(name);
    box->setToolTip(ToQt(tip));
    Row(label, {box});
    return box;
}

QComboBox* PageBuilder::ComboBox(const QString& name, TextView label,
                                 std::span<const TextView> items, bool isEditable)
{
    auto* box = new QComboBox(m_page);
    box->setObjectName(name);
    box->setEditable(isEditable);
    box->setInsertPolicy(QComboBox::NoInsert);
    // What is typed stays as it is: no "12" for a typed "1", no "Arial" for a typed "arial".
    if (isEditable)
        box->setCompleter(nullptr);
    for (const TextView item : items)
        box->addItem(ToQt(item));
    Row(label, {box});
    return box;
}

orvane::NumberBox* PageBuilder::NumberBox(const QString& name, TextView label, int lowest,
                                          int highest)
{
    auto* box = new orvane::NumberBox(name, lowest, highest, m_page);
    Row(label, {box, box->UpDown()});
    return box;
}

orvane::ColorSwatch* PageBuilder::ColorSwatch(const QString& name, TextView label, Dialogs& dialogs,
                                              TextView tip, TextView caption)
{
    auto* swatch = new orvane::ColorSwatch(caption, dialogs, m_page);
    swatch->setObjectName(name);
    swatch->setToolTip(ToQt(tip));
    Row(label, {swatch});
    return swatch;
}

QListWidget* PageBuilder::ListBox(const QString& name, TextView label,
                                  std::span<const TextView> items)
{
    auto* box = new QListWidget(m_page);
    box->setObjectName(name);
    box->setAccessibleName(SpokenName(label));
    for (const TextView item : items)
        box->addItem(ToQt(item));
    if (!label.empty()) {
        auto* caption = new QLabel(ToQt(label), m_page);
        caption->setBuddy(box);
        m_rows->addRow(caption);
    }
    Fill(box);
    return box;
}

QCheckBox* PageBuilder::CheckBox(const QString& name, TextView caption)
{
    auto* box = new QCheckBox(ToQt(caption), m_page);
    box->setObjectName(name);
    m_rows->addRow(box);
    return box;
}

QRadioButton* PageBuilder::Option(const QString& group, int index, TextView caption,
                                  TextView description, const QString& picture)
{
    auto* option = new QRadioButton(ToQt(caption), m_page);
    option->setObjectName(MemberName(group, index));
    m_rows->addRow(option);
    if (description.empty())
        return option;
    auto* words = new OptionText(description, option, m_page);
    option->setAccessibleDescription(ToQt(description));
    if (picture.isEmpty())
        m_rows->addRow(words);
    else
        Row({}, {words, MakePicture(picture, {96, 64}, m_page)});
    return option;
}

QPlainTextEdit* PageBuilder::CodeBox(const QString& name, TextView accessibleName)
{
    auto* box = new QPlainTextEdit(m_page);
    box->setObjectName(name);
    box->setAccessibleName(ToQt(accessibleName));
    box->setReadOnly(true);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setTabChangesFocus(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    Fill(box);
    return box;
}

QLabel* PageBuilder::Note(TextView words, const QString& name)
{
    auto* note = new QLabel(ToQtLines(words), m_page);
    note->setObjectName(name);
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    m_rows->addRow(note);
    return note;
}

QLabel* PageBuilder::Picture(const QString& name, QSize size)
{
    QLabel* picture = MakePicture(name, size, m_page);
    m_rows->addRow(picture);
    return picture;
}

QPushButton* PageBuilder::Button(const QString& name, TextView caption)
{
    auto* button = new QPushButton(ToQt(caption), m_page);
    button->setObjectName(name);
    button->setAutoDefault(true);
    return button;
}

void PageBuilder::Buttons(std::initializer_list<QPushButton*> buttons)
{
    auto* line = new QHBoxLayout;
    for (QPushButton* button : buttons)
        line->addWidget(button);
    line->addStretch(1);
    m_rows->addRow(line);
}

QLabel* PageBuilder::Row(TextView label, std::initializer_list<QWidget*> widgets)
{
    auto* line = new QHBoxLayout;
    for (QWidget* widget : widgets)
        line->addWidget(widget, widget == *widgets.begin() ? 1 : 0);
    if (label.empty()) {
        m_rows->addRow(line);
        return nullptr;
    }
    QWidget* field = *widgets.begin();
    auto* caption = new QLabel(ToQt(label), m_page);
    caption->setBuddy(field);
    field->setAccessibleName(SpokenName(label));
    m_rows->addRow(caption, line);
    return caption;
}

PageBuilder PageBuilder::Frame(TextView caption)
{
    auto* frame = new QGroupBox(ToQt(caption), m_page);
    m_rows->addRow(frame);
    return PageBuilder(frame);
}

void PageBuilder::Fill(QWidget* widget)
{
    if (widget == nullptr)
        widget = new QWidget(m_page);
    QSizePolicy policy = widget->sizePolicy();
    policy.setVerticalPolicy(QSizePolicy::Expanding);
    policy.setVerticalStretch(1);
    widget->setSizePolicy(policy);
    m_rows->addRow(widget);
}

} // namespace orvane
