#include "core/catalogue.h"
#include "core/draft.h"
#include "core/numbers.h"
#include "effects/effect_windows.h"
#include "effects/effects.h"
#include "program/recipe_menu.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/field_controls.h"
#include "windows/qt_text.h"

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>

namespace orvane::testing {
namespace {

constexpr TextView oddText = u"a \"b\" 'c' «Id» \\ é☃";

/// Another value that the field's control can show.
void Change(QWidget& window, FieldName name, Text& value)
{
    const QString control = ToQt(name.Name);
    if (!name.Choices.empty())
        value = name.Choices.back();
    else if (const auto* combo = window.findChild<QComboBox*>(control);
             combo && !combo->isEditable())
        value = FromQt(combo->itemText(combo->count() - 1));
    else if (const auto* list = window.findChild<QListWidget*>(control))
        value = FromQt(list->item(list->count() - 1)->text());
    else
        value = oddText;
}

void Change(QWidget&, FieldName, bool& value)
{
    value = !value;
}

void Change(QWidget& window, FieldName name, int& value)
{
    // A number without a slider stands in a text that the author does not see.
    const auto* slider = window.findChild<QSlider*>(ToQt(name.Name));
    if (name.Bounds)
        value = static_cast<int>(name.Bounds->Most);
    else if (slider == nullptr)
        value += 7;
    else
        value = slider->value() == slider->maximum() ? slider->minimum() : slider->maximum();
}

template <class Choice>
requires std::is_enum_v<Choice>
void Change(QWidget& window, FieldName name, Choice& value)
{
    int last = 0;
    while (window.findChild<QRadioButton*>(MemberName(name.Name, last + 1)) != nullptr)
        ++last;
    value = static_cast<Choice>(last);
}

void Change(QWidget&, FieldName, BlockParagraphs& value)
{
    value.Words = oddText;
}

void Change(QWidget&, FieldName name, std::vector<Text>& colors)
{
    colors.assign(static_cast<std::size_t>(name.Bounds->Most), u"#0000ff");
}

/// Two rows with other texts in each field.
template <HasFields Row>
void Change(QWidget&, FieldName, std::vector<Row>& value)
{
    value.resize(2);
    Text text(oddText);
    for (Row& row : value) {
        ForEachField(row, [&](FieldName, auto& field) { SetField(field, FieldTexts{text}); });
        text = u"two\r\nlines";
    }
}

void ChangeFiles(auto& effect)
{
    if constexpr (requires { effect.Required; }) {
        effect.Required.RequiredFileNames[1] = u"b.gif";
        effect.Required.RequiredFileSources[1] = u"/pics/b.gif";
        effect.Required.RequiredFileCount = 2;
    }
}

/// What holds for the window and the fields of every effect.
template <class Form>
class EveryEffectTest : public ::testing::Test
{
protected:
    using Effect = decltype(std::declval<Form>().Parameters());

    EveryEffectTest() { AddRecipeMenu(m_form, m_desk.Bench); }

    Effect Changed()
    {
        Effect effect = m_form.Parameters();
        ForEachField(effect, [this](FieldName name, auto& value) { Change(m_form, name, value); });
        ChangeFiles(effect);
        return effect;
    }

    FakeDesk m_desk;
    Form m_form{m_desk.Bench};
};

template <class Windows>
struct TypesOf;
template <class... Windows>
struct TypesOf<std::tuple<Windows...>>
{
    using Types = ::testing::Types<Windows...>;
};

TYPED_TEST_SUITE(EveryEffectTest, TypesOf<EffectWindows>::Types);

TYPED_TEST(EveryEffectTest, HasItsNameTitleAndHelpTopic)
{
    EXPECT_FALSE(this->m_form.windowTitle().isEmpty());
    this->m_form.show();
    auto* pages = this->m_form.template findChild<QStackedWidget*>();
    for (int page = pages->count(); page-- > 0;) {
        pages->setCurrentIndex(page);
        LetRun();
        ExpectAccessible(this->m_form);
    }
    auto* help = this->m_form.template findChild<QWidget*>(QStringLiteral("cmdHelp"));
    Click(this->m_form, help != nullptr ? "cmdHelp" : "cmdClickHereForHelp");
    ASSERT_EQ(this->m_desk.Help.Shown.size(), 1u);
    const CatalogueRow* row = FindRow(static_cast<EffectKind>(this->m_desk.Help.Shown[0] - 100));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(this->m_form.objectName().toStdString(), row->Form);
}

TEST(EffectWindowsTest, EveryEffectHasItsWindow)
{
    FakeDesk desk;
    for (const CatalogueRow& row : Catalogue()) {
        const auto wizard = MakeWizard(row.Kind, desk.Bench);
        EXPECT_EQ(wizard != nullptr, AnyEffect::Fresh(row.Kind).has_value()) << row.MenuCommand;
        EXPECT_TRUE(wizard == nullptr || wizard->objectName().toStdString() == row.Form);
    }
}

TYPED_TEST(EveryEffectTest, AFreshWindowShowsTheDefaultsInControlsOfTheFieldsNames)
{
    EXPECT_EQ(WriteDraft(this->m_form.Parameters()), WriteDraft(typename TestFixture::Effect()));
    const FieldControls controls(this->m_form);
    const auto shown = this->m_form.Parameters();
    ForEachField(shown, [&](FieldName name, const auto&) {
        EXPECT_TRUE(controls.Has(name.Name)) << name.Name;
        const auto* words = this->m_form.template findChild<QComboBox*>(
            ToQt(name.Choices.empty() ? "" : name.Name));
        for (std::size_t i = 0; i < name.Choices.size(); ++i)
            EXPECT_EQ(words->itemData(static_cast<int>(i)).toString(), ToQt(name.Choices[i]));
    });
}

TYPED_TEST(EveryEffectTest, GivesBackWhatItIsGivenWithEveryFieldChanged)
{
    const auto changed = this->Changed();
    this->m_form.SetParameters(changed);
    EXPECT_EQ(ToUtf8(WriteDraft(this->m_form.Parameters())), ToUtf8(WriteDraft(changed)));
    EXPECT_TRUE(this->m_form.Parameters() == changed);
}

TYPED_TEST(EveryEffectTest, SavesARecipeWithoutSecretsThatFillsAnotherWindow)
{
    auto changed = this->Changed();
    ForEachSource(changed, [](Text& path) { path = path.empty() ? path : u"/pics/a.gif"; });
    this->m_form.SetParameters(changed);
    this->m_desk.Files.Folders = {u"/r"};
    this->m_desk.Dialogs.AnswerSaveFile(u"/r/a.ovr");
    this->m_form.template findChild<QAction*>(QStringLiteral("mnuSaveAsRecipe"))->trigger();
    ForEachField(changed, [&](FieldName name, const auto&) {
        const std::string line = "\n" + std::string(name.Name) + ":";
        EXPECT_TRUE(!name.IsSecret ||
                    this->m_desk.Files.Contents[u"/r/a.ovr"].find(line) == std::string::npos);
    });
    TypeParam next(this->m_desk.Bench);
    AddRecipeMenu(next, this->m_desk.Bench);
    this->m_desk.Dialogs.AnswerOpenFile(u"/r/a.ovr");
    next.template findChild<QAction*>(QStringLiteral("mnuOpenRecipe"))->trigger();
    EXPECT_EQ(ToUtf8(WriteDraft(next.Parameters())), ToUtf8(WriteDraft(changed)));
    EXPECT_TRUE(this->m_desk.Dialogs.Said.empty());
}

TYPED_TEST(EveryEffectTest, GeneratedTextsHaveWholeLineEndsAndNoUnfilledMark)
{
    auto effect = this->Changed();
    TidyFields(effect);
    const EffectPayload payload = PayloadOf(effect, {});
    EXPECT_NE(FindRow(payload.Kind), nullptr);
    for (const Text& text : {payload.HEADHTML, payload.BODYHTML}) {
        EXPECT_EQ(ReplaceAll(text, u"\r\n", u"").find_first_of(u"\r\n"), Text::npos);
        EXPECT_EQ(ReplaceAll(text, u"«Id»", u"").find(u'«'), Text::npos);
    }
}

TYPED_TEST(EveryEffectTest, ADraftWithAnyTextsInItsFieldsLeavesAWindowThatWorks)
{
    struct Window : TypeParam
    {
        using TypeParam::Next;
        using TypeParam::TypeParam;
    };
    const typename TestFixture::Effect fresh;
    for (const Text& text : {Text(u"99999"), Text(u"-7"), Text(u"1e300"), Text(u"-1"), Text(u"1"),
                             Text(u"51"), Text(u"nan"), Text(), Text(5000, u'9')}) {
        const FieldTexts texts(10, text);
        Text draft = u"a line without a value\n" + DraftLines(draftFiles, texts);
        ForEachField(fresh, [&](FieldName name, const auto&) {
            draft += DraftLines(name.Name, texts);
            for (const ControlName other : name.Others)
                draft += DraftLines(other, texts);
        });
        Window window(this->m_desk.Bench);
        window.show();
        window.Open(Recipe{draft});
        if constexpr (HasRequiredFiles<typename TestFixture::Effect>) {
            const bool isSlot = Val(text) >= 0 && Val(text) <= 50;
            EXPECT_TRUE(isSlot || window.Parameters().Required == RequiredFiles()) << ToUtf8(text);
        }
        for (int page = 0; page < 6 && window.isVisible(); ++page)
            window.Next();
        const auto payload = window.TakePayload();
        EXPECT_NE(window.isVisible(), payload.has_value());
        const Deliverable inPreview = window.WouldDeliver();
        const auto* shown = std::get_if<EffectPayload>(&inPreview);
        EXPECT_TRUE(payload ? shown != nullptr && *shown == *payload : shown == nullptr);
    }
}

TYPED_TEST(EveryEffectTest, HasItsPagesAndShrinksWithItsButtonsInSight)
{
    struct Window : TypeParam
    {
        using TypeParam::PanelCount;
        using TypeParam::TypeParam;
    };
    EXPECT_EQ(Window(this->m_desk.Bench).PanelCount(), TestFixture::Effect::Pages);
    this->m_form.resize(640, 440);
    this->m_form.show();
    LetRun();
    EXPECT_EQ(this->m_form.size(), QSize(640, 440));
    const auto* cancel = Find<QWidget>(this->m_form, "cmdCancel");
    EXPECT_TRUE(this->m_form.rect().contains(cancel->geometry()));
}

TYPED_TEST(EveryEffectTest, CancelledAndDeliveredWorkIsOfferedByTheNextWindow)
{
    this->m_form.show();
    this->m_form.SetParameters(this->Changed());
    const Text before = WriteDraft(this->m_form.Parameters());
    Press(this->m_form, Qt::Key_Escape);
    TypeParam other(this->m_desk.Bench);
    other.WasDelivered(); // as it opened: what waits to be taken up is other work
    TypeParam next(this->m_desk.Bench);
    next.show();
    EXPECT_EQ(WriteDraft(next.Parameters()), WriteDraft(typename TestFixture::Effect()));
    Press(*Find<QWidget>(next, "lblTakeUp"), Qt::Key_Return);
    EXPECT_EQ(ToUtf8(WriteDraft(next.Parameters())), ToUtf8(before));
    next.WasDelivered();
    TypeParam last(this->m_desk.Bench);
    last.show();
    EXPECT_TRUE(Find<QWidget>(last, "lblTakeUp")->isHidden());
    EXPECT_NE(last.focusWidget()->objectName(), "lblAsLastTime") << "what is typed is not lost";
    Press(*Find<QWidget>(last, "lblAsLastTime"), Qt::Key_Return);
    EXPECT_EQ(ToUtf8(WriteDraft(last.Parameters())), ToUtf8(before));
    TypeParam opened(this->m_desk.Bench);
    opened.Open(Recipe{before});
    EXPECT_EQ(ToUtf8(WriteDraft(opened.Parameters())), ToUtf8(before));
    EXPECT_TRUE(Find<QWidget>(opened, "lblAsLastTime")->isHidden());
}

} // namespace
} // namespace orvane::testing
