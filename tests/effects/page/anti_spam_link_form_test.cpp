#include "effects/page/anti_spam_link_form.h"

#include "tests/support/form_test.h"

namespace orvane::testing {
namespace {

using AntiSpamLinkFormTest = FormTest<AntiSpamLinkForm>;

TEST_F(AntiSpamLinkFormTest, KeepsTheAddressForTheNextLink)
{
    Type(m_form, "Email", u"jane@example.com");
    Click(m_form, "cmdOK");
    EXPECT_EQ(Said().size(), 1u);
    EXPECT_TRUE(m_desk.Settings.Writes.empty());
    m_desk.Dialogs.AnswerOpenFile(u"/pics/my letter.gif");
    Click(m_form, "cmdBrowseForImage");
    Type(m_form, "txtSubject", u"Hello");
    EXPECT_FALSE(Find<QWidget>(m_form, "chkAntiSpam")->isVisible());
    Click(m_form, "cmdOK");
    EXPECT_EQ(m_form.TakePayload(), Generate({.Email = u"jane@example.com",
                                              .txtImage = u"my letter.gif",
                                              .txtSubject = u"Hello"}));
    EXPECT_EQ((m_desk.Settings.Stored[{u"Page Loom", u"Miscellaneous", u"EmailAddress"}]),
              u"jane@example.com");

    AntiSpamLinkForm next(m_desk.Bench);
    EXPECT_EQ(next.Parameters(), (AntiSpamLink{.Email = u"jane@example.com"}));
    EXPECT_EQ(Find<QLineEdit>(next, "Email")->selectedText(), QStringLiteral("jane@example.com"));
}

} // namespace
} // namespace orvane::testing
