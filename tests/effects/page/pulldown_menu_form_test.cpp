#include "effects/page/pulldown_menu_form.h"

#include "tests/support/form_test.h"
#include "windows/acting_list.h"
#include "windows/ok_cancel_form.h"

#include <QPushButton>

namespace orvane::testing {
namespace {

class PulldownMenuFormTest : public FormTest<PulldownMenuForm>
{
protected:
    OkCancelForm& Item() { return *m_form.findChild<OkCancelForm*>(); }
};

TEST_F(PulldownMenuFormTest, EditsTheSelectedItemButNoSeparator)
{
    m_form.SetParameters({.Items = {{u"a", u"a.html"}, {Text(menuSeparator), u""}}});
    Click(m_form, "cmdEditMenuItem");
    EXPECT_EQ(Said(), Texts{u"Select a menu item from the list in order to edit it."});
    Find<ActingList>(m_form, "List2")->setCurrentRow(1);
    Click(m_form, "cmdEditMenuItem");
    EXPECT_EQ(Said(), Texts{u"The separator can't be edited.  It can only be added or removed."});
    Click(m_form, "cmdMoveUp");
    Find<ActingList>(m_form, "List1")->setCurrentRow(1);
    Click(m_form, "cmdEditMenuItem");
    EXPECT_EQ(WordsOf(Item(), "txtMenuItem"), u"a");
    EXPECT_EQ(WordsOf(Item(), "txtMenuItemURL"), u"a.html");
    m_desk.Dialogs.AnswerOpenFile(u"/pages/b.html");
    Click(Item(), "cmdBrowseForURL");
    EXPECT_NE(Find(m_desk.Dialogs.Requests[0].Filter, u"|*.php;*.php3;*.phtml"), 0u);
    Click(Item(), "cmdOK");
    EXPECT_EQ(m_form.Parameters().Items.at(1), (MenuItem{u"a", u"b.html"}));
}

} // namespace
} // namespace orvane::testing
