#include "effects/effects.h"

#include "core/catalogue.h"

#include <gtest/gtest.h>

namespace orvane::testing {
namespace {

TEST(EffectsTest, TheFirstComplaintOfAllPagesIsToldInTheirOrder)
{
    auto tooltip = AnyEffect::Fresh(EffectKind::Tooltips);
    tooltip->ReadDraft(u"txtWidth: wide");
    EXPECT_EQ(tooltip->Check()->Control, "txtTooltipText");
    tooltip->ReadDraft(u"txtTooltipText: A fact");
    EXPECT_EQ(tooltip->Check()->Control, "txtTitleText");
    tooltip->ReadDraft(u"txtWidth: 99");
    EXPECT_EQ(tooltip->Check()->Control, "optHoverObject(0)");
}

TEST(EffectsTest, WhatADraftSaysOfASecretIsNotBelieved)
{
    auto gate = AnyEffect::Fresh(EffectKind::PasswordScript);
    gate->ReadDraft(u"GateUrl: a\nGatePassword: b\nLoginUsername: c\nLoginPassword: d");
    EXPECT_EQ(std::get<PasswordProtection>(gate->Parameters()),
              (PasswordProtection{.GateUrl = u"a"}));
}

TEST(EffectsTest, EveryButtonOpensAnEffectWithAWholeRow)
{
    for (const CatalogueRow& row : Catalogue()) {
        const EffectCommand* command = FindCommand(row.MenuCommand);
        ASSERT_NE(command, nullptr) << row.MenuCommand;
        EXPECT_TRUE(AnyEffect::Fresh(command->Kind)) << row.MenuCommand;
        if (row.Kind == EffectKind::SoundReserved)
            continue;
        for (const TextView fact :
             {row.Picture, row.Title, row.Description, row.InTodaysBrowsers, row.MarkerName})
            EXPECT_FALSE(fact.empty()) << row.MenuCommand;
        EXPECT_FALSE(row.Form.empty()) << row.MenuCommand;
        EXPECT_NE(row.OtherWords.empty(), row.HasButton) << row.MenuCommand;
    }
}

} // namespace
} // namespace orvane::testing
