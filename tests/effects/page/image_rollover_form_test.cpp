#include "effects/page/image_rollover_form.h"

#include "tests/support/form_test.h"
#include "tests/support/picture_files.h"
#include "tests/support/test_folder.h"
#include "windows/ok_cancel_form.h"

namespace orvane::testing {
namespace {

class ImageRolloverFormTest : public FormTest<ImageRolloverForm>
{
protected:
    void Pick(QWidget& window, const char* button, const char* name)
    {
        m_folder.Put(name, GifBytes(30, 20));
        m_desk.Files.Contents[m_folder.TextAt(name)] = GifBytes(30, 20);
        m_desk.Dialogs.AnswerOpenFile(m_folder.TextAt(name));
        Click(window, button);
    }

    TestFolder m_folder;
};

TEST_F(ImageRolloverFormTest, ARowNeedsWordsAndAPictureAndCanLoseTheOneInPlaceOfTheWords)
{
    Click(m_form, "cmdAdd");
    auto& row = *m_form.findChild<OkCancelForm*>();
    LetRun();
    ExpectAccessible(row);
    Press(row, Qt::Key_Return);
    Type(row, "txtWords", u" The cat ");
    Press(row, Qt::Key_Return);
    EXPECT_EQ(Said(), (Texts{u"Please enter the words that stand on the page.",
                             u"Please choose the picture that is shown."}));
    Pick(row, "cmdBrowseForImage", "a b.gif");
    Pick(row, "cmdBrowseForTrigger", "c.gif");
    Press(*Find<QWidget>(row, "txtTrigger"), Qt::Key_Delete);
    Press(row, Qt::Key_Return);
    EXPECT_EQ(m_form.Parameters().lstTriggers, (RolloverRows{{u"The cat",
                                                              {.Address = u"a%20b.gif",
                                                               .Source = m_folder.TextAt("a b.gif"),
                                                               .Width = 30,
                                                               .Height = 20}}}));
}

} // namespace
} // namespace orvane::testing
