// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zdractuatormovingcmd.h"

#include "base/commandcontract.h"
#include "processes/zandortesting.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Type = ZDRActuatorMovingCmd::ActuatorType;
using Operation = ZDRActuatorMovingCmd::ActuatorOperation;

std::vector<Request> requests()
{
    return {
        Request({9, 2, 3, 4, 5, 300})
            .typed<ZDRActuatorMovingCmd>(Type(9), 2, 3, 4, 5, 300)
            .written("[9, 2, 3, 4, 5, 300]")
            .sends({9, 2, 3, 4, 5, 2, 54, 1}),
        Request({1, 2, 3, 4, 5, 6})
            .typed<ZDRActuatorMovingCmd>(Operation(2), 3, 4, 5, 6)
            .written("[1, 2, 3, 4, 5, 6]")
            .sends({1, 2, 3, 4, 5, 1, 6}),
        Request({-9, 1000, -3, 4, 5, -300})
            .typed<ZDRActuatorMovingCmd>(Type(-9), 1000, -3, 4, 5, -300)
            .written("[-9, 1000, -3, 4, 5, -300]")
            .sends({-9, 1000, -3, 4, 5}),
        Request({9, 2, 3, 4, 5})
            .parameters({9, 2, 3, 4, 5, 0})
            .typed<ZDRActuatorMovingCmd>(Type(9), 2, 3, 4, 5)
            .written("[9, 2, 3, 4, 5, 0]")
            .sends({9, 2, 3, 4, 5}),
        Request({9, 2, 3, 4})
            .parameters({9, 2, 3, 4, 245, 0})
            .typed<ZDRActuatorMovingCmd>(Type(9), 2, 3, 4)
            .written("[9, 2, 3, 4, 245, 0]")
            .sends({9, 2, 3, 4, 245}),
        Request({9, 2, 3})
            .parameters({9, 2, 3, 64, 245, 0})
            .typed<ZDRActuatorMovingCmd>(Type(9), 2, 3)
            .written("[9, 2, 3, 64, 245, 0]")
            .sends({9, 2, 3, 64, 245}),
        Request({1, 2})
            .parameters({1, 2, 0, 64, 245, 0})
            .typed<ZDRActuatorMovingCmd>(Operation(2))
            .written("[1, 2, 0, 64, 245, 0]")
            .sends({1, 2, 0, 64, 245}),
        Request({9, 2})
            .parameters({9, 2, 0, 64, 245, 0})
            .typed<ZDRActuatorMovingCmd>(Type(9), 2)
            .written("[9, 2, 0, 64, 245, 0]")
            .sends({9, 2, 0, 64, 245}),
        Request({1, 2, 3})
            .parameters({1, 2, 3, 64, 245, 0})
            .typed<ZDRActuatorMovingCmd>(Operation(2), 3)
            .written("[1, 2, 3, 64, 245, 0]")
            .sends({1, 2, 3, 64, 245}),
        Request({1, 2, 3, 4})
            .parameters({1, 2, 3, 4, 245, 0})
            .typed<ZDRActuatorMovingCmd>(Operation(2), 3, 4)
            .written("[1, 2, 3, 4, 245, 0]")
            .sends({1, 2, 3, 4, 245}),
        Request({1, 2, 3, 4, 5})
            .parameters({1, 2, 3, 4, 5, 0})
            .typed<ZDRActuatorMovingCmd>(Operation(2), 3, 4, 5)
            .written("[1, 2, 3, 4, 5, 0]")
            .sends({1, 2, 3, 4, 5}),
        Request({9})
            .parameters({9, 245, 0, 64, 245, 0})
            .typed<ZDRActuatorMovingCmd>(Type(9))
            .written("[9, 245, 0, 64, 245, 0]")
            .sends({9, 245, 0, 64, 245}),
        Request(List())
            .parameters({1, 245, 0, 64, 245, 0})
            .written("[1, 245, 0, 64, 245, 0]")
            .sends({1, 245, 0, 64, 245}),
    };
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<ZDRActuatorMovingCmd>());
    facts.catalogue = {"ZDR_ACTUATOR_MOVE", 160, "0027", 0};
    facts.protoType = 1;
    facts.valueFunction = "ZDRActuatorMovingCmd::ZDRActuatorMovingCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ZDRActuatorMovingCmd::ZDRActuatorMovingCmd(QList<QVariant>)";
    for (const char *code : {"DE02882", "DE02883", "DE02884", "DE02885", "DE02886", "DE02887"})
        facts.arguments.push_back(optional(Integer, {code, code, "ZDRActuatorMovingCmd: invalid parameter"}));
    facts.getters = {getter(&ZDRActuatorMovingCmd::actuatorType), getter(&ZDRActuatorMovingCmd::operation),
                     getter(&ZDRActuatorMovingCmd::parameter1),   getter(&ZDRActuatorMovingCmd::parameter2),
                     getter(&ZDRActuatorMovingCmd::parameter3),   getter(&ZDRActuatorMovingCmd::value)};
    facts.defaults = Request()
                         .parameters({1, 245, 0, 64, 245, 0})
                         .written("[1, 245, 0, 64, 245, 0]")
                         .sends({1, 245, 0, 64, 245});
    facts.requests = requests();
    facts.firmware = testing_processes::cappingStations();
    facts.answers = serialAnswers();
    return facts;
}

TEST(ZDRActuatorMovingCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(ZDRActuatorMovingCmd, knowsItsFirmware)
{
    for (const Gate &gate : testing_processes::cappingStations()) {
        SCOPED_TRACE(gate.version.toString().toStdString());
        EXPECT_EQ(ZDRActuatorMovingCmd::checkSupportedCommand(gate.version), gate.isSupported);
    }
}

TEST(ZDRActuatorMovingCmd, takesNoPlainNumberForAnActuator)
{
    static_assert(!std::is_convertible_v<Type, ZDRActuatorMovingCmd>);
    static_assert(!std::is_convertible_v<Operation, ZDRActuatorMovingCmd>);
    static_assert(!std::is_constructible_v<ZDRActuatorMovingCmd, int>);
    static_assert(!std::is_constructible_v<ZDRActuatorMovingCmd, bool>);
    static_assert(!std::is_constructible_v<ZDRActuatorMovingCmd, double>);
    static_assert(!std::is_constructible_v<ZDRActuatorMovingCmd, const char *>);
}

} // namespace
