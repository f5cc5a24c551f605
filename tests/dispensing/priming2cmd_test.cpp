// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/priming2cmd.h"

#include "dispensing/circuitlisttesting.h"

#include <QuvFramework/fw_version.h>

#include <vector>

namespace {

using namespace testing_dispensing;

const CircuitListRefusals refusals = {"Priming2Cmd", "", "", "", ""};

void expectRefused(const PCircuitFormula &formula, const FW_Dispenser &machine, const char *code)
{
    expectCheckRefused<Priming2Cmd>(refusals, formula, machine, code);
}

TEST(Priming2Cmd, goesBackToItsDefaults)
{
    Priming2Cmd command(oneCircuit(1), nullptr);
    command.setDefaults();
    EXPECT_EQ(command.formula(), PCircuitFormula(1, {}));
    EXPECT_EQ(command.command(), "PRIMING2");
}

TEST(Priming2Cmd, takesCircuitsThatTheMachineHas)
{
    expectCheckPassed<Priming2Cmd>({2, {{1, 0, 50, 1}, {4, 0, 50, 300}}}, dispenser());
    expectCheckPassed<Priming2Cmd>(oneCircuit(1), withDisabledCircuit(2));
    expectCheckPassed<Priming2Cmd>(oneCircuit(1), withoutCalibration(1));
    expectCheckPassed<Priming2Cmd>({77, {{1, -1, 0, 1}}}, dispenser()); // the firmware's affair
}

TEST(Priming2Cmd, cannotBeCheckedWithoutADispenser)
{
    FW_DriverError error;
    EXPECT_FALSE(Priming2Cmd(oneCircuit(1), nullptr).checkFormula(error));
    expectError(error, "DE02313", "Invalid data");
    EXPECT_FALSE(Priming2Cmd().checkFormula(error)); // comes before the circuits
    expectError(error, "DE02313", "Invalid data");
}

TEST(Priming2Cmd, needsCircuits)
{
    expectRefused({2, {}}, dispenser(), "DE02314");
}

TEST(Priming2Cmd, needsCircuitsThatTheMachineHas)
{
    expectRefused(oneCircuit(99), dispenser(), "DE02315");
    expectRefused(oneCircuit(0), dispenser(), "DE02315");
    expectRefused(oneCircuit(1), withDisabledCircuit(1), "DE02315");
    expectRefused({2, {{1, 0, 50, 1}, {2, 0, 50, 1}, {99, 0, 50, 1}}}, dispenser(), "DE02315");
    expectRefused({2, {{1, 0, 50, 0}, {99, 0, 50, 1}}}, dispenser(), "DE02315"); // before the strokes
}

TEST(Priming2Cmd, needsStrokesOfEveryCircuit)
{
    expectRefused(oneCircuit(1, 0), dispenser(), "DE02316");
    expectRefused(oneCircuit(1, -1), dispenser(), "DE02316");
    expectRefused({2, {{1, 0, 50, 1}, {2, 0, 50, 0}}}, dispenser(), "DE02316");
    expectRefused({2, {{1, 0, 50, 0}, {2, 0, 50, 1}}}, dispenser(), "DE02316");
}

TEST(Priming2Cmd, isKnownToNewFirmware)
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
        EXPECT_EQ(Priming2Cmd().isSupportedCommand(row.version), row.supported)
            << row.version.m_family << ' ' << row.version.m_revision;
    }
}

TEST(Priming2Cmd, saysWhatItDoes)
{
    const Priming2Cmd command(threeCircuits(2), nullptr);
    EXPECT_EQ(command.actionString(false).m_text, "Priming in progress");
    EXPECT_EQ(command.actionString(true).m_text, "Priming in progress on positions 1,3,4");
    EXPECT_EQ(Priming2Cmd(oneCircuit(3), nullptr).actionString(true).m_text,
              "Priming in progress on positions 3");
    EXPECT_EQ(Priming2Cmd().actionString(true).m_text, "Priming in progress on positions ");
}

TEST(Priming2Cmd, translatesItsWords)
{
    const TranslatedTexts translated;
    const Priming2Cmd command(threeCircuits(2), nullptr);
    EXPECT_EQ(command.actionString(false).m_translated, translation("Priming in progress"));
    EXPECT_EQ(command.actionString(true).m_text, "Priming in progress on positions 1,3,4");
    EXPECT_EQ(command.actionString(true).m_translated, translation("Priming in progress on positions 1,3,4"));
}

} // namespace
