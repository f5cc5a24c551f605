// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescanstartcmd.h"

#include "firmware/firmwarescantesting.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <type_traits>

namespace {

using namespace testing_firmware;

CommandFacts facts()
{
    CommandFacts facts(formsOf<FirmwareScanStartCmd>());
    facts.forms.ofValue = nullptr; // there is no list form beside it
    facts.catalogue = {"FW_SCAN_START", 38, "0022", 0};
    facts.protoType = 1;
    facts.takesNothing = true;
    facts.words = scanning();
    facts.defaults = Request().written("[]").sends({1});
    facts.requests = {
        Request().onlyTyped().notReadBack().typed<FirmwareScanStartCmd>().written("[]").sends({1})};
    facts.answers = serialAnswers();
    return facts;
}

TEST(FirmwareScanStartCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(FirmwareScanStartCmd, readsNoArguments)
{
    const FirmwareScanStartCmd command(arrayOf(5, "x"));
    EXPECT_EQ(command.command(), "FW_SCAN_START");
    EXPECT_EQ(command.parameters(), List());
    EXPECT_EQ(command.serialParameters(2), QList<int>{1});
    expectRefusal("DE00311", "ProtoCommand: expected array for xmlrpc type",
                  "ProtoCommand::ProtoCommand(int, QString, const XmlRpc::XmlRpcValue&, const FW_Machine*)",
                  [] { const FirmwareScanStartCmd refused(Value(structOf({}))); });
    static_assert(!std::is_constructible_v<FirmwareScanStartCmd, int>);
    static_assert(!std::is_constructible_v<FirmwareScanStartCmd, List>);
}

TEST(FirmwareScanStartCmd, takesTimeForEachEnabledCircuit)
{
    FW_Dispenser machine;
    FW_Canister canister(1);
    for (int position = 1; position <= 16; ++position)
        canister.addCircuit(FW_Circuit(position, position));
    machine.addCanister(canister);
    FirmwareScanStartCmd command;
    const FW_Mixer mixer;
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&machine), 4000);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&mixer), 0);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 0);
    machine.getCircuitByPosition(2)->setEnabled(false);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&machine), 3750);
    command.setModuleID(7);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&machine), 250);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(&mixer), 250);
    EXPECT_EQ(command.getCmdEstimatedExecutionTime(nullptr), 250);
}

} // namespace
