#include "effects/page/thought_bubbles_form.h"

#include "tests/support/form_test.h"
#include "tests/support/picture_files.h"
#include "tests/support/test_folder.h"
#include "windows/place_picture.h"

#include <QTest>

namespace orvane::testing {
namespace {

class ThoughtBubblesFormTest : public FormTest<ThoughtBubblesForm>
{
protected:
    void Pick(const char* name, const std::string& bytes)
    {
        m_folder.Put(name, bytes);
        m_desk.Files.Contents[m_folder.TextAt(name)] = bytes;
        m_desk.Dialogs.AnswerOpenFile(m_folder.TextAt(name));
        Click(m_form, "cmdBrowseForImage");
    }

    /// Clicks on the picture, so many pixels right of its middle and below it.
    void Point(int right, int below)
    {
        auto* picture = Find<PlacePicture>(m_form, "picPreview");
        QTest::mouseClick(picture, Qt::LeftButton, {},
                          picture->contentsRect().center() + QPoint(right, below));
    }

    TestFolder m_folder;
};

TEST_F(ThoughtBubblesFormTest, AClickOnThePictureSetsThePlaceOfTheBubbleThatIsEdited)
{
    Pick("no.gif", "no picture");
    EXPECT_EQ(Said(), Texts{u"Orvane can't read this image:\r\nno.gif"});
    Pick("our dog.gif", GifBytes(100, 80));
    Type(m_form, "txtDescription", u"Our dog");
    Click(m_form, "cmdNext");
    EXPECT_EQ(m_form.focusWidget()->objectName(), QStringLiteral("txtBubble"));
    LetRun();
    Point(11, -19);
    Point(60, 0);
    Type(m_form, "txtBubble", u"Lunch?");
    Find<QWidget>(m_form, "txtSecondBubble")->setFocus();
    Point(-29, 31);
    Click(m_form, "cmdNext");
    Click(m_form, "cmdNext");
    const ThoughtBubbles wanted{.Picture = {.Address = u"our%20dog.gif",
                                            .Source = m_folder.TextAt("our dog.gif"),
                                            .Description = u"Our dog",
                                            .Width = 100,
                                            .Height = 80},
                                .txtBubble = u"Lunch?",
                                .txtPlaceX = u"60",
                                .txtPlaceY = u"25",
                                .txtSecondPlaceX = u"20",
                                .txtSecondPlaceY = u"87"};
    EXPECT_EQ(m_form.Parameters(), wanted) << ToUtf8(WriteDraft(m_form.Parameters()));
    EXPECT_EQ(m_form.TakePayload(), Generate(wanted));
}

} // namespace
} // namespace orvane::testing
