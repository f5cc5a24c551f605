// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/ics_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {1, "ICS_cdata", "", "", "", "DE00177", "", {}};

} // namespace

TEST(ICS_cdata, hasNoFieldsOfItsOwn)
{
    expectTable<ICS_cdata>(structure);
}

TEST(ICS_cdata, isEnabledForAnyMachine)
{
    const FW_Dispenser dispenser;
    const FW_Mixer mixer;
    EXPECT_EQ(sent(ICS_cdata(&dispenser)), (QList<int>{1, 1}));
    EXPECT_EQ(sent(ICS_cdata(&mixer)), (QList<int>{1, 1}));
    EXPECT_EQ(sent(ICS_cdata(nullptr)), (QList<int>{1, 1}));
    EXPECT_EQ(ICS_cdata(nullptr).numOfConfigurationParams(), 0);
}

TEST(ICS_cdata, changesNoMachine)
{
    FW_Dispenser dispenser;
    EXPECT_TRUE(applied(ICS_cdata(QStringLiteral("1,5")), dispenser));
    EXPECT_TRUE(dispenser == FW_Dispenser());
    EXPECT_TRUE(ICS_cdata().updateConfiguration(nullptr, nullptr, nullptr));
    EXPECT_TRUE(ICS_cdata().updateLocalData(nullptr));
}

TEST(ICS_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(ICS_cdata(QStringLiteral("2,5")).toXmlRpcValue()), R"({"cmd_enabled": 2})");
}
