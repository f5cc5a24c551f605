// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/priming2cmd.h"

#include "dispensing/pack2priming2testing.h"

namespace {

using namespace testing_dispensing;

struct Priming2
{
    using Command = Priming2Cmd;
    static constexpr char className[] = "Priming2Cmd";
    static constexpr char name[] = "PRIMING2";
    static PCircuitFormula defaults() { return PCircuitFormula(1, {}); }
    static constexpr char withoutDispenser[] = "DE02313";
    static constexpr char withoutCircuits[] = "DE02314";
    static constexpr char unknownCircuit[] = "DE02315";
    static constexpr char words[] = "Priming in progress";
    static constexpr char wordsOfThree[] = "Priming in progress on positions 1,3,4";
    static constexpr char wordsOfNone[] = "Priming in progress on positions ";
};
INSTANTIATE_TYPED_TEST_SUITE_P(Priming2Cmd, CircuitWorkCommand, Priming2);

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

TEST(Priming2Cmd, saysOfOneCircuitWhatItDoes)
{
    EXPECT_EQ(Priming2Cmd(oneCircuit(3), nullptr).actionString(true).m_text,
              "Priming in progress on positions 3");
}

} // namespace
