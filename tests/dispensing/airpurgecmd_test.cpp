// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/airpurgecmd.h"

#include "dispensing/circuitlisttesting.h"

#include <QuvFramework/fw_version.h>

#include <type_traits>
#include <vector>

namespace {

using namespace testing_dispensing;

const CircuitListRefusals ofPack = {"Pack2Cmd", "", "", "", ""};

TEST(AirpurgeCmd, isAPack)
{
    static_assert(std::is_base_of_v<Pack2Cmd, AirpurgeCmd>);
}

TEST(AirpurgeCmd, goesOutWithItsOwnCriterionWhateverWasGiven)
{
    for (int criterion : {0, 1, 2, 8, 9, 16, -1}) {
        const AirpurgeCmd command(PCircuitFormula(criterion, {{1, 0, 50, 2}}), nullptr);
        EXPECT_EQ(command.formula().executionCriterion, 9);
        EXPECT_EQ(command.serialParameters(1), (QList<int>{9, 1, 1, 0, 50, 1, 2}));
        EXPECT_EQ(dumped(command.xmlrpc_parameters()),
                  R"([{"exec_criterion": 9, "target_circuits": )"
                  R"([{"position_id": 1, "queue_id": 0, "speed": 50, "strokes": 2}]}])");
    }
}

TEST(AirpurgeCmd, keepsItsCircuitsWhenItGoesBackToItsDefaults)
{
    AirpurgeCmd command(oneCircuit(3), nullptr);
    ASSERT_TRUE(command.setCommand("PACK2"));
    command.setDefaults();
    EXPECT_EQ(command.command(), "AIRPURGE");
    EXPECT_EQ(command.formula(), PCircuitFormula(9, {{3, 0, 50, 1}}));
}

TEST(AirpurgeCmd, isCheckedAsAPack)
{
    expectCheckPassed<AirpurgeCmd>(oneCircuit(1, 0), dispenser());
    expectCheckRefused<AirpurgeCmd>(ofPack, {2, {}}, dispenser(), "DE02326");
    expectCheckRefused<AirpurgeCmd>(ofPack, oneCircuit(99), dispenser(), "DE02327");
    expectCheckRefused<AirpurgeCmd>(ofPack, oneCircuit(1), withDisabledCircuit(1), "DE02327");
    FW_DriverError error;
    EXPECT_FALSE(AirpurgeCmd(oneCircuit(1), nullptr).checkFormula(error));
    expectError(error, "DE02325", "Invalid data");
}

TEST(AirpurgeCmd, isKnownToSomeFirmware)
{
    struct Row
    {
        FW_Version version;
        bool supported;
    };
    const std::vector<Row> rows = {{{63, 33}, false}, {{63, 99}, false}, {{68, 0}, false},  {{68, 2}, false},
                                   {{68, 3}, true},   {{70, 0}, false},  {{70, 99}, false}, {{72, 0}, true},
                                   {{72, 5}, true},   {{1, 99}, false},  {{}, false}};
    for (const Row &row : rows) {
        EXPECT_EQ(AirpurgeCmd().isSupportedCommand(row.version), row.supported)
            << row.version.m_family << ' ' << row.version.m_revision;
    }
}

TEST(AirpurgeCmd, saysWhatItDoes)
{
    const AirpurgeCmd command(PCircuitFormula(2, {{3, 0, 50, 1}, {1, 0, 50, 1}}), nullptr);
    EXPECT_EQ(command.actionString(false).m_text, "Air purge in progress");
    EXPECT_EQ(command.actionString(true).m_text, "Air purge in progress on position 3");
    EXPECT_EQ(AirpurgeCmd().actionString(false).m_text, "Air purge in progress");
    EXPECT_EQ(AirpurgeCmd().actionString(true).m_text, "Air purge in progress");
}

TEST(AirpurgeCmd, translatesItsWords)
{
    const TranslatedTexts translated;
    EXPECT_EQ(AirpurgeCmd().actionString(true).m_translated, translation("Air purge in progress"));
    EXPECT_EQ(AirpurgeCmd(oneCircuit(3), nullptr).actionString(true).m_text,
              "Air purge in progress on position 3");
    EXPECT_EQ(AirpurgeCmd(oneCircuit(3), nullptr).actionString(true).m_translated,
              translation("Air purge in progress on position 3"));
}

} // namespace
