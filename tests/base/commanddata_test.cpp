// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/commanddata.h"

#include "base/basetesting.h"

namespace {

CommandData dataOfCode(const char *code)
{
    CommandData data;
    data.m_code = QString::fromLatin1(code);
    return data;
}

void expectNew(const CommandData &data)
{
    EXPECT_EQ(data.id, 0);
    EXPECT_TRUE(data.name.isNull());
    EXPECT_TRUE(data.m_code.isNull());
    EXPECT_EQ(data.minParams, 0);
    EXPECT_EQ(data.maxParams, 0);
    EXPECT_EQ(data.type, -1);
    EXPECT_FALSE(data.multiple);
    EXPECT_FALSE(data.useDispenser);
    EXPECT_EQ(data.schedulingPriorityLevel, 0);
    EXPECT_EQ(data.workingPriorityLevel, 0);
    EXPECT_TRUE(data.checkBusy);
    EXPECT_FALSE(data.trackExecutionTime);
    EXPECT_EQ(data.busyTimeout, 40000);
    EXPECT_EQ(data.busyCheckFrequency, 500);
    EXPECT_FALSE(data.recordInStats);
    EXPECT_EQ(data.machineObjUsage, 2);
    EXPECT_FALSE(data.privateCommand);
    EXPECT_FALSE(data.erogationCommand);
    EXPECT_TRUE(data.available);
    EXPECT_EQ(data.version, 0);
}

TEST(CommandData, hasItsDefaults)
{
    expectNew(CommandData());
}

TEST(CommandData, takesTheWorkingLevelBeforeTheSchedulingLevel)
{
    const CommandData data(8, "TINT", "0017", 1, 2, 5, true, true, 3, 4, false, true, 5000000000LL,
                           6000000000LL, true, 7, true, true, false, 9);
    EXPECT_EQ(data.id, 8);
    EXPECT_EQ(data.name, "TINT");
    EXPECT_EQ(data.m_code, "0017");
    EXPECT_EQ(data.minParams, 1);
    EXPECT_EQ(data.maxParams, 2);
    EXPECT_EQ(data.type, 5);
    EXPECT_TRUE(data.multiple);
    EXPECT_TRUE(data.useDispenser);
    EXPECT_EQ(data.workingPriorityLevel, 3);
    EXPECT_EQ(data.schedulingPriorityLevel, 4);
    EXPECT_FALSE(data.checkBusy);
    EXPECT_TRUE(data.trackExecutionTime);
    EXPECT_EQ(data.busyTimeout, 5000000000LL);
    EXPECT_EQ(data.busyCheckFrequency, 6000000000LL);
    EXPECT_TRUE(data.recordInStats);
    EXPECT_EQ(data.machineObjUsage, 7);
    EXPECT_TRUE(data.privateCommand);
    EXPECT_TRUE(data.erogationCommand);
    EXPECT_FALSE(data.available);
    EXPECT_EQ(data.version, 9);

    CommandData cleared = data;
    cleared.clear();
    expectNew(cleared);
}

/** The constructor's flags, of which one is set, told apart by their place. */
TEST(CommandData, takesEachFlagForItself)
{
    const auto withFlag = [](int set) {
        const auto is = [set](int flag) { return flag == set; };
        return CommandData(0, "", "", 0, 0, 0, is(0), is(1), 0, 0, is(2), is(3), 0, 0, is(4), 0, is(5), is(6),
                           is(7), 0);
    };
    for (int set = 0; set < 8; ++set) {
        SCOPED_TRACE(set);
        const CommandData data = withFlag(set);
        const bool flags[] = {data.multiple,           data.useDispenser,  data.checkBusy,
                              data.trackExecutionTime, data.recordInStats, data.privateCommand,
                              data.erogationCommand,   data.available};
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(flags[i], i == set) << i;
    }
}

TEST(CommandData, readsItsCodeAsAHexadecimalNumber)
{
    const struct
    {
        const char *code;
        unsigned number;
        bool ok;
    } rows[] = {{"0017", 23, true},
                {"17", 23, true},
                {"3F78", 16248, true},
                {"000c", 12, true},
                {"", 0, false},
                {"I3", 0, true},
                {"FR", 0, true}, // which is no number, and nobody is told
                {"FFFFFFFF", 4294967295U, true},
                {"100000000", 0, true}};
    for (const auto &row : rows) {
        SCOPED_TRACE(row.code);
        bool ok = !row.ok;
        EXPECT_EQ(dataOfCode(row.code).code(&ok), row.number);
        EXPECT_EQ(ok, row.ok);
        EXPECT_EQ(dataOfCode(row.code).code(), row.number);
    }
    bool ok = true;
    EXPECT_EQ(CommandData().code(&ok), 0U);
    EXPECT_FALSE(ok);
}

} // namespace
