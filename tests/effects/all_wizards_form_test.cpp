#include "core/catalogue.h"
#include "program/form_desk.h"
#include "tests/support/doubles.h"
#include "tests/support/qt_controls.h"
#include "windows/wizard_form.h"

namespace orvane {
namespace {

using namespace orvane::testing;

std::vector<const CatalogueRow*> BuiltEffects()
{
    std::vector<const CatalogueRow*> built;
    for (const CatalogueRow& row : Catalogue())
        if (FormDesk::IsBuilt(row.Kind))
            built.push_back(&row);
    return built;
}

/// What holds for the window of every effect in the catalogue.
class AllWizardsTest : public ::testing::TestWithParam<const CatalogueRow*>
{
protected:
    FakeDesk m_desk;
    std::unique_ptr<WizardForm> m_form = FormDesk::MakeWizard(GetParam()->Kind, m_desk.Bench);
};

TEST_P(AllWizardsTest, HasItsNameTitleAndAccessibleControls)
{
    EXPECT_EQ(m_form->objectName().toStdString(), GetParam()->Form);
    EXPECT_EQ(m_form->windowTitle().isEmpty(), false);
    m_form->show();
    LetRun();
    ExpectAccessible(*m_form);
}

TEST_P(AllWizardsTest, ForgetsTheFilesOfTheEffectBefore)
{
    m_desk.Core.Required.Names[0] = u"old.gif";
    m_desk.Core.RequiredFileCount = 1;
    FormDesk::MakeWizard(GetParam()->Kind, m_desk.Bench);
    EXPECT_EQ(m_desk.Core.Required, RequiredFiles());
    EXPECT_EQ(m_desk.Core.RequiredFileCount, 0);
}

TEST_P(AllWizardsTest, HelpButtonOpensItsTopic)
{
    m_form->show();
    Click(*m_form, m_form->findChild<QWidget*>(QStringLiteral("cmdHelp")) ? "cmdHelp"
                                                                          : "cmdClickHereForHelp");
    EXPECT_EQ(m_desk.Help.Shown, std::vector<int>{100 + static_cast<int>(GetParam()->Kind)});
}

INSTANTIATE_TEST_SUITE_P(Effects, AllWizardsTest, ::testing::ValuesIn(BuiltEffects()),
                         [](const auto& row) {
                             return std::string(row.param->Form) +
                                    std::to_string(static_cast<int>(row.param->Kind));
                         });

} // namespace
} // namespace orvane
