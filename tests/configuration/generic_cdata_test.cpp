// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/generic_cdata.h"

#include "structuretesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {0,         "GENERIC_cdata", "DE00284", "Invalid Dispenser data",
                             "DE02805", "DE00286",       "",        {}};

} // namespace

TEST(GENERIC_cdata, keepsTheRowAsItCame)
{
    expectTable<GENERIC_cdata>(structure);
    const GENERIC_cdata row(tokens("01 02 01 05 02 0A 01"), 3);
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("2,5,256"));
    EXPECT_EQ(sent(row), (QList<int>{1, 2, 1, 5, 2, 10, 1}));
    EXPECT_EQ(row.numOfConfigurationParams(), 2);
}

TEST(GENERIC_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { GENERIC_cdata row(machine); });
    const FW_Dispenser dispenser;
    EXPECT_EQ(sent(GENERIC_cdata(&dispenser)), (QList<int>{1, 1}));
    EXPECT_EQ(GENERIC_cdata(&dispenser).commandCode(), 0);
}

TEST(GENERIC_cdata, keepsTheCodeOfItsOwner)
{
    GENERIC_cdata row(QStringLiteral("1,7"));
    row.setCommandCode(12);
    const std::unique_ptr<ConfData> copy(row.clone());
    EXPECT_EQ(copy->commandCode(), 12);
    EXPECT_EQ(copy->configurationParamsStr(), QStringLiteral("1,7"));
}

TEST(GENERIC_cdata, changesNoMachine)
{
    FW_Dispenser dispenser;
    EXPECT_TRUE(applied(GENERIC_cdata(QStringLiteral("1,5")), dispenser));
    EXPECT_TRUE(dispenser == FW_Dispenser());
    EXPECT_TRUE(GENERIC_cdata().updateConfiguration(nullptr, nullptr, nullptr));
}

TEST(GENERIC_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(GENERIC_cdata(QStringLiteral("2,5")).toXmlRpcValue()), R"({"cmd_enabled": 2})");
}
