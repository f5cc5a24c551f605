// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pack2cmd.h"

#include "dispensing/pack2priming2testing.h"

namespace {

using namespace testing_dispensing;

struct Pack2
{
    using Command = Pack2Cmd;
    static constexpr char className[] = "Pack2Cmd";
    static constexpr char withoutDispenser[] = "DE02325";
    static constexpr char withoutCircuits[] = "DE02326";
    static constexpr char unknownCircuit[] = "DE02327";
};
INSTANTIATE_TYPED_TEST_SUITE_P(Pack2Cmd, CircuitWorkCommand, Pack2);

TEST(Pack2Cmd, keepsTheCommandContract)
{
    CircuitListKind kind;
    kind.refusals = {"Pack2Cmd", "DE02320", "DE02321", "DE02322", "DE02324"};
    kind.catalogue = {"PACK2", 121, "0023", 1};
    kind.criterion = 0;
    kind.ofNone = {"", "Pack in progress", "Pack in progress on positions "};
    kind.ofCircuit1 = {"", "Pack in progress", "Pack in progress on positions 1"};
    kind.ofThreeCircuits = {"", "Pack in progress", "Pack in progress on positions 1,3,4"};
    kind.firmware = firmwareOfCircuitWork();
    expectCircuitListContract<Pack2Cmd>(kind);
}

TEST(Pack2Cmd, needsNoStrokes)
{
    const FW_Dispenser machine = dispenser();
    expectCheckPassed<Pack2Cmd>(oneCircuit(1, 0), machine);
    expectCheckPassed<Pack2Cmd>(oneCircuit(1, -1), machine);
    EXPECT_EQ(Pack2Cmd(oneCircuit(1, 0), &machine).serialParameters(1), (QList<int>{2, 1, 1, 0, 50}));
}

} // namespace
