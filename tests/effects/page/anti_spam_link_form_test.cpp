#include "effects/page/anti_spam_link_form.h"

#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"

namespace orvane {
namespace {

using namespace orvane::testing;

TEST(AntiSpamLinkFormTest, KeepsTheAddressForTheNextLink)
{
    FakeDesk desk;
    AntiSpamLinkForm form(desk.Bench);
    form.show();
    Type(form, "Email", u"jane@example.com");
    Click(form, "cmdOK");
    EXPECT_EQ(desk.Dialogs.TakeSaid().size(), 1u);
    EXPECT_TRUE(desk.Settings.Writes.empty());
    desk.Dialogs.AnswerOpenFile(u"/pics/my letter.gif");
    Click(form, "cmdBrowseForImage");
    Type(form, "txtSubject", u"Hello");
    EXPECT_FALSE(Find<QWidget>(form, "chkAntiSpam")->isVisible());
    Click(form, "cmdOK");
    EXPECT_EQ(form.TakePayload(), Generate({.Email = u"jane@example.com",
                                            .txtImage = u"my letter.gif",
                                            .txtSubject = u"Hello"}));
    EXPECT_EQ((desk.Settings.Stored[{u"Page Loom", u"Miscellaneous", u"EmailAddress"}]),
              u"jane@example.com");

    AntiSpamLinkForm next(desk.Bench);
    EXPECT_EQ(next.Parameters(), (AntiSpamLink{.Email = u"jane@example.com"}));
    EXPECT_EQ(Find<QLineEdit>(next, "Email")->selectedText(), QStringLiteral("jane@example.com"));
}

} // namespace
} // namespace orvane
