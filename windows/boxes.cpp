#include "windows/boxes.h"

#include "windows/controls.h"
#include "windows/multi_line_box.h"
#include "windows/qt_text.h"
#include "windows/text_line.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include <algorithm>
#include <limits>

namespace orvane {

namespace {

constexpr auto exactly = Qt::MatchExactly | Qt::MatchCaseSensitive;

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

/// A caption that is too long for one line is broken near its middle, which no one hears.
void Label(QAbstractButton& button, TextView caption)
{
    constexpr qsizetype longest = 90;
    QString words = ToQt(caption);
    if (words.size() > longest) {
        button.setAccessibleName(words);
        words[words.lastIndexOf(u' ', words.size() / 2)] = u'\n';
    }
    button.setText(words);
}

} // namespace

QLineEdit* MakeTextBox(QWidget* parent)
{
    return new TextLine(parent);
}

QCheckBox* MakeCheckBox(TextView caption, QWidget* parent)
{
    auto* box = new QCheckBox(parent);
    Label(*box, caption);
    return box;
}

QRadioButton* MakeOption(TextView caption, QWidget* parent)
{
    auto* option = new QRadioButton(parent);
    Label(*option, caption);
    return option;
}

QComboBox* MakeComboBox(std::span<const TextView> items, bool isEditable, QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->setEditable(isEditable);
    box->setInsertPolicy(QComboBox::NoInsert);
    // What is typed stays as it is: no "12" for a typed "1", no "Arial" for a typed "arial".
    if (isEditable) {
        box->setCompleter(nullptr);
        LeaveAltToAccessKeys(*box);
        box->lineEdit()->setMaxLength(std::numeric_limits<int>::max());
    }
    for (const TextView item : items)
        box->addItem(ToQt(item));
    return box;
}

QComboBox* MakeChoiceBox(std::span<const ChoiceItem> items, bool isEditable, QWidget* parent)
{
    QComboBox* box = MakeComboBox({}, isEditable, parent);
    for (const ChoiceItem& item : items)
        box->addItem(ToQt(item.Caption.empty() ? item.Value : item.Caption), ToQt(item.Value));
    return box;
}

Text ComboText(const QComboBox& box)
{
    // An editable box may show another text than that of its current item.
    const QVariant value = box.itemData(box.findText(box.currentText(), exactly));
    return FromQt(value.isValid() ? value.toString() : box.currentText());
}

void SetComboText(QComboBox& box, TextView text)
{
    // With an item of that text current, the arrow keys go on from there.
    const int valued = box.findData(ToQt(text), Qt::UserRole, exactly);
    box.setCurrentIndex(valued >= 0 ? valued : box.findText(ToQt(text), exactly));
    if (box.isEditable() && valued < 0)
        box.setEditText(ToQt(text));
}

QSlider* MakeSlider(const SliderRange& range, QWidget* parent)
{
    auto* slider = new QSlider(Qt::Horizontal, parent);
    slider->setRange(range.Lowest, range.Highest);
    slider->setTickInterval(range.Tick);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setPageStep(range.LargeStep);
    slider->setSingleStep(range.SmallStep);
    return slider;
}

void SetSliderRange(QSlider& slider, const NumberBounds& bounds)
{
    slider.setRange(static_cast<int>(bounds.Least), static_cast<int>(bounds.Most));
    const int way = slider.maximum() - slider.minimum();
    slider.setTickInterval(way / 10);
    slider.setPageStep(way / 10);
    slider.setSingleStep(std::max(1, way / 100));
}

MultiLineBox* MakeCodeBox(QWidget* parent)
{
    auto* box = new MultiLineBox(parent);
    box->setReadOnly(true);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setTabChangesFocus(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return box;
}

QLabel* MakeOptionWords(TextView words, QRadioButton* option, QWidget* parent)
{
    option->setAccessibleDescription(ToQt(words));
    return new OptionText(words, option, parent);
}

QLabel* MakePicture(const QString& name, QSize size, QWidget* parent)
{
    auto* picture = new QLabel(parent);
    picture->setPixmap(QIcon(QStringLiteral(":/pictures/%1.svg").arg(name))
                           .pixmap(size, parent->devicePixelRatioF()));
    picture->setAlignment(Qt::AlignCenter);
    return picture;
}

} // namespace orvane
