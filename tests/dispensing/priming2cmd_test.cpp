// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/priming2cmd.h"

#include "dispensing/pack2priming2testing.h"

namespace {

using namespace testing_dispensing;

struct Priming2
{
    using Command = Priming2Cmd;
    static constexpr char className[] = "Priming2Cmd";
    static constexpr char withoutDispenser[] = "DE02313";
    static constexpr char withoutCircuits[] = "DE02314";
    static constexpr char unknownCircuit[] = "DE02315";
};
INSTANTIATE_TYPED_TEST_SUITE_P(Priming2Cmd, CircuitWorkCommand, Priming2);

TEST(Priming2Cmd, keepsTheCommandContract)
{
    CircuitListKind kind;
    kind.refusals = {"Priming2Cmd", "DE01933", "DE01930", "DE01355", "DE02165"};
    kind.catalogue = {"PRIMING2", 120, "0024", 1};
    kind.criterion = 1;
    kind.ofNone = {"", "Priming in progress", "Priming in progress on positions "};
    kind.ofCircuit1 = {"", "Priming in progress", "Priming in progress on positions 1"};
    kind.ofThreeCircuits = {"", "Priming in progress", "Priming in progress on positions 1,3,4"};
    kind.firmware = firmwareOfCircuitWork();
    expectCircuitListContract<Priming2Cmd>(kind);
}

TEST(Priming2Cmd, leavesTheRestToTheFirmware)
{
    expectCheckPassed<Priming2Cmd>(oneCircuit(1), withoutCalibration(1));
    expectCheckPassed<Priming2Cmd>({77, {{1, -1, 0, 1}}}, dispenser());
}

TEST(Priming2Cmd, needsStrokesOfEveryCircuit)
{
    expectKindRefused<Priming2>(oneCircuit(1, 0), dispenser(), "DE02316");
    expectKindRefused<Priming2>(oneCircuit(1, -1), dispenser(), "DE02316");
    expectKindRefused<Priming2>({2, {{1, 0, 50, 1}, {2, 0, 50, 0}}}, dispenser(), "DE02316");
    expectKindRefused<Priming2>({2, {{1, 0, 50, 0}, {2, 0, 50, 1}}}, dispenser(), "DE02316");
}

TEST(Priming2Cmd, looksForItsCircuitsBeforeTheirStrokes)
{
    expectKindRefused<Priming2>({2, {{1, 0, 50, 0}, {99, 0, 50, 1}}}, dispenser(), "DE02315");
}

} // namespace
