// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pack2cmd.h"

#include "dispensing/circuitlisttesting.h"

#include <QuvFramework/fw_version.h>

#include <vector>

namespace {

using namespace testing_dispensing;

const CircuitListRefusals refusals = {"Pack2Cmd", "", "", "", ""};

void expectRefused(const PCircuitFormula &formula, const FW_Dispenser &machine, const char *code)
{
    expectCheckRefused<Pack2Cmd>(refusals, formula, machine, code);
}

TEST(Pack2Cmd, goesBackToItsDefaults)
{
    Pack2Cmd command(oneCircuit(1), nullptr);
    command.setDefaults();
    EXPECT_EQ(command.formula(), PCircuitFormula());
    EXPECT_EQ(command.command(), "PACK2");
}

TEST(Pack2Cmd, takesCircuitsThatTheMachineHas)
{
    expectCheckPassed<Pack2Cmd>({2, {{1, 0, 50, 1}, {4, 0, 50, 300}}}, dispenser());
    expectCheckPassed<Pack2Cmd>(oneCircuit(1), withDisabledCircuit(2));
}

TEST(Pack2Cmd, needsNoStrokes)
{
    const FW_Dispenser machine = dispenser();
    expectCheckPassed<Pack2Cmd>(oneCircuit(1, 0), machine);
    expectCheckPassed<Pack2Cmd>(oneCircuit(1, -1), machine);
    EXPECT_EQ(Pack2Cmd(oneCircuit(1, 0), &machine).serialParameters(1), (QList<int>{2, 1, 1, 0, 50}));
}

TEST(Pack2Cmd, cannotBeCheckedWithoutADispenser)
{
    FW_DriverError error;
    EXPECT_FALSE(Pack2Cmd(oneCircuit(1), nullptr).checkFormula(error));
    expectError(error, "DE02325", "Invalid data");
    EXPECT_FALSE(Pack2Cmd().checkFormula(error)); // comes before the circuits
    expectError(error, "DE02325", "Invalid data");
}

TEST(Pack2Cmd, needsCircuits)
{
    expectRefused({2, {}}, dispenser(), "DE02326");
}

TEST(Pack2Cmd, needsCircuitsThatTheMachineHas)
{
    expectRefused(oneCircuit(99), dispenser(), "DE02327");
    expectRefused(oneCircuit(0), dispenser(), "DE02327");
    expectRefused(oneCircuit(1), withDisabledCircuit(1), "DE02327");
    expectRefused({2, {{1, 0, 50, 1}, {2, 0, 50, 1}, {99, 0, 50, 1}}}, dispenser(), "DE02327");
}

TEST(Pack2Cmd, isKnownToNewFirmware)
{
    struct Row
    {
        FW_Version version;
        bool supported;
    };
    const std::vector<Row> rows = {{{63, 0}, false},  {{63, 32}, false}, {{63, 33}, true},  {{68, 0}, false},
                                   {{68, 99}, false}, {{70, 0}, true},   {{70, 5}, true},   {{72, 0}, true},
                                   {{72, 5}, true},   {{1, 99}, false},  {{64, 99}, false}, {{71, 99}, false},
                                   {{}, false}};
    for (const Row &row : rows) {
        EXPECT_EQ(Pack2Cmd().isSupportedCommand(row.version), row.supported)
            << row.version.m_family << ' ' << row.version.m_revision;
    }
}

TEST(Pack2Cmd, saysWhatItDoes)
{
    const Pack2Cmd command(threeCircuits(2), nullptr);
    EXPECT_EQ(command.actionString(false).m_text, "Pack in progress");
    EXPECT_EQ(command.actionString(true).m_text, "Pack in progress on positions 1,3,4");
    EXPECT_EQ(Pack2Cmd().actionString(true).m_text, "Pack in progress on positions ");
}

TEST(Pack2Cmd, translatesItsWords)
{
    const TranslatedTexts translated;
    const Pack2Cmd command(threeCircuits(2), nullptr);
    EXPECT_EQ(command.actionString(false).m_translated, translation("Pack in progress"));
    EXPECT_EQ(command.actionString(true).m_text, "Pack in progress on positions 1,3,4");
    EXPECT_EQ(command.actionString(true).m_translated, translation("Pack in progress on positions 1,3,4"));
}

} // namespace
