// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zdrcycleoperationcmd.h"

#include "base/commandcontract.h"
#include "processes/zandortesting.h"

#include <type_traits>

namespace {

using namespace testing_base;

using CycleType = ZDRCycleOperationCmd::CycleType;

CommandFacts facts()
{
    constexpr char invalid[] = "ZDRCycleOperationCmd: invalid parameter";
    CommandFacts facts(formsOf<ZDRCycleOperationCmd>());
    facts.catalogue = {"ZDR_CYCLE_OPERATION", 159, "0032", 0};
    facts.protoType = 1;
    facts.valueFunction = "ZDRCycleOperationCmd::ZDRCycleOperationCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ZDRCycleOperationCmd::ZDRCycleOperationCmd(QList<QVariant>)";
    facts.arguments = {optional(Integer, {"DE02879", "DE02879", invalid}),
                       optional(Integer, {"DE02880", "DE02880", invalid}),
                       optional(Integer, {"DE02881", "DE02881", invalid})};
    facts.getters = {getter(&ZDRCycleOperationCmd::cycleType), getter(&ZDRCycleOperationCmd::parameter1),
                     getter(&ZDRCycleOperationCmd::parameter2)};
    facts.defaults = Request().parameters({2, 0, 0}).written("[2, 0, 0]").sends({2, 0, 0});
    facts.requests = {
        Request({3, 17, 245})
            .typed<ZDRCycleOperationCmd>(CycleType(3), 17, 245)
            .written("[3, 17, 245]")
            .sends({3, 17, 245}),
        Request({-5, -1, 60516})
            .typed<ZDRCycleOperationCmd>(CycleType(-5), -1, 60516)
            .written("[-5, -1, 60516]")
            .sends({-5, -1, 60516}),
        Request({7, 8})
            .parameters({7, 8, 0})
            .typed<ZDRCycleOperationCmd>(CycleType(7), 8)
            .written("[7, 8, 0]")
            .sends({7, 8, 0}),
        Request({7})
            .parameters({7, 0, 0})
            .typed<ZDRCycleOperationCmd>(CycleType(7))
            .written("[7, 0, 0]")
            .sends({7, 0, 0}),
        Request(List()).parameters({2, 0, 0}).written("[2, 0, 0]").sends({2, 0, 0}),
    };
    facts.firmware = testing_processes::cappingStations();
    facts.answers = serialAnswers();
    return facts;
}

TEST(ZDRCycleOperationCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(ZDRCycleOperationCmd, knowsItsFirmware)
{
    for (const Gate &gate : testing_processes::cappingStations()) {
        SCOPED_TRACE(gate.version.toString().toStdString());
        EXPECT_EQ(ZDRCycleOperationCmd::checkSupportedCommand(gate.version), gate.isSupported);
    }
}

TEST(ZDRCycleOperationCmd, takesNoPlainNumberForACycle)
{
    static_assert(!std::is_constructible_v<ZDRCycleOperationCmd, int>);
    static_assert(!std::is_constructible_v<ZDRCycleOperationCmd, bool>);
    static_assert(!std::is_constructible_v<ZDRCycleOperationCmd, double>);
    static_assert(!std::is_constructible_v<ZDRCycleOperationCmd, const char *>);
}

} // namespace
