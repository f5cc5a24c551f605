// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pack2cmd.h"

#include "dispensing/pack2priming2testing.h"

namespace {

using namespace testing_dispensing;

struct Pack2
{
    using Command = Pack2Cmd;
    static constexpr char className[] = "Pack2Cmd";
    static constexpr char name[] = "PACK2";
    static PCircuitFormula defaults() { return PCircuitFormula(); }
    static constexpr char withoutDispenser[] = "DE02325";
    static constexpr char withoutCircuits[] = "DE02326";
    static constexpr char unknownCircuit[] = "DE02327";
    static constexpr char words[] = "Pack in progress";
    static constexpr char wordsOfThree[] = "Pack in progress on positions 1,3,4";
    static constexpr char wordsOfNone[] = "Pack in progress on positions ";
};
INSTANTIATE_TYPED_TEST_SUITE_P(Pack2Cmd, CircuitWorkCommand, Pack2);

TEST(Pack2Cmd, needsNoStrokes)
{
    const FW_Dispenser machine = dispenser();
    expectCheckPassed<Pack2Cmd>(oneCircuit(1, 0), machine);
    expectCheckPassed<Pack2Cmd>(oneCircuit(1, -1), machine);
    EXPECT_EQ(Pack2Cmd(oneCircuit(1, 0), &machine).serialParameters(1), (QList<int>{2, 1, 1, 0, 50}));
}

} // namespace
