// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/airpurgecmd.h"

#include "dispensing/circuitlisttesting.h"

#include <type_traits>

namespace {

using namespace testing_dispensing;

const CircuitListRefusals ofPack = {"Pack2Cmd", "DE02320", "DE02321", "DE02322", "DE02324"};

TEST(AirpurgeCmd, isAPack)
{
    static_assert(std::is_base_of_v<Pack2Cmd, AirpurgeCmd>);
}

TEST(AirpurgeCmd, keepsTheCommandContract)
{
    constexpr char air[] = "Air purge in progress";
    CircuitListKind kind;
    kind.refusals = ofPack;
    kind.catalogue = {"AIRPURGE", 122, "0023", 1};
    kind.criterion = 9;
    kind.hasItsOwnCriterion = true;
    kind.ofNone = {"", air};
    kind.ofCircuit1 = {"", air, "Air purge in progress on position 1"};
    kind.ofThreeCircuits = {"", air, "Air purge in progress on position 1"};
    kind.firmware = {{{63, 33}, false}, {{63, 99}, false}, {{68, 0}, false},     {{68, 2}, false},
                     {{68, 3}, true},   {{70, 0}, false},  {{70, 99}, false},    {{72, 0}, true},
                     {{72, 5}, true},   {{1, 99}, false},  {FW_Version(), false}};
    const FW_Dispenser machine = dispenser();
    for (const FW_Dispenser *given : {static_cast<const FW_Dispenser *>(nullptr), &machine}) {
        SCOPED_TRACE(given ? "with a machine" : "without a machine");
        CommandFacts facts = circuitListFacts<AirpurgeCmd>(kind, given);
        facts.countedName = "PACK2"; // the pack that it is counts
        facts.afterDefaults = facts.requests.front();
        expectCommandContract(facts);
    }
}

TEST(AirpurgeCmd, goesOutWithItsOwnCriterionWhateverWasGiven)
{
    for (int criterion : {0, 1, 2, 8, 9, 16, -1}) {
        SCOPED_TRACE(criterion);
        const AirpurgeCmd command(PCircuitFormula(criterion, {{1, 0, 50, 2}}), nullptr);
        EXPECT_EQ(command.formula().executionCriterion, 9);
        EXPECT_EQ(command.serialParameters(1), (QList<int>{9, 1, 1, 0, 50, 1, 2}));
    }
}

TEST(AirpurgeCmd, getsItsNameBackWithItsDefaults)
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

TEST(AirpurgeCmd, namesTheFirstCircuitAlone)
{
    const AirpurgeCmd command(PCircuitFormula(2, {{3, 0, 50, 1}, {1, 0, 50, 1}}), nullptr);
    EXPECT_EQ(command.actionString(true).m_text, "Air purge in progress on position 3");
}

} // namespace
