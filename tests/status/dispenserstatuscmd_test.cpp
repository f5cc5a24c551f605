// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatuscmd.h"

#include "base/commandcontract.h"
#include "status/statustesting.h"

#include <limits>
#include <type_traits>

namespace {

using namespace testing_status;

constexpr char notCreated[] = "Failed to create DispenserStatusAnswer";
constexpr int least = std::numeric_limits<int>::min();
constexpr int greatest = std::numeric_limits<int>::max();

Value workingStruct()
{
    Value value = idleStruct();
    value["tinting"] = true;
    value["recirculating"] = true;
    return value;
}

std::string written(const Value &status)
{
    return dumped(asWritten(status));
}

std::string clearedWritten()
{
    Value value = idleStruct();
    value["disp_status"] = 0;
    return written(value);
}

AnswerFacts answers()
{
    constexpr char ofTokens[] = "DispenserStatusAnswer::DispenserStatusAnswer(QStringList)";
    constexpr char ofValue[] = "DispenserStatusAnswer::DispenserStatusAnswer(const XmlRpc::XmlRpcValue&)";
    constexpr char ofMachineTokens[] = "MachineStatusAnswer::MachineStatusAnswer(QStringList)";
    constexpr char ofMachineValue[] = "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)";
    QStringList working = idleTokens();
    working[3] = "C";
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens("DispenserStatusAnswer", working, written(workingStruct()))
            .failsWith("DE00097", notCreated)
            .refuses({"6", "0", "1", "0", "x", "0", "0"}, "DE00129",
                     "Error during command answer decoding: mask 2", ofTokens)
            .refuses({}, "DE00066", "Error during command answer decoding: bad length", ofMachineTokens);
    answers.value =
        AnswerOfValue("DispenserStatusAnswer", workingStruct(), written(workingStruct()))
            .failsWith("DE01266", notCreated)
            .refuses(without(idleStruct(), "punching"), "DE00026",
                     "DispenserStatusAnswer: expected punching value", ofValue)
            .refuses(without(idleStruct(), "hw_error"), "DE00026",
                     "MachineStatusAnswer: expected hw_error value", ofMachineValue)
            .refuses(Value(0), "DE00443", "MachineStatusAnswer: expected disp_status value", ofMachineValue);
    answers.list = AnswerOfList("DispenserStatusAnswer", {1, true}, clearedWritten())
                       .failsWith("DE01267", notCreated)
                       .refusesNothing();
    answers.envelope = {"DE00027", notCreated};
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<DispenserStatusCmd>());
    facts.catalogue = {"GET_STATUS", 0, "0006", 0};
    facts.protoType = 1;
    facts.valueFunction = "DispenserStatusCmd::DispenserStatusCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "DispenserStatusCmd::DispenserStatusCmd(QList<QVariant>)";
    facts.arguments = {optional(Integer, {"DE00298", "DE00300", "Position ID: expected INT parameter"})
                           .takes({0, 1, 17, 245, -1, least, greatest})};
    facts.words = silence();
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {
        Request({17}).typed<DispenserStatusCmd>(17).written("[17]").module(17),
        Request({-1}).typed<DispenserStatusCmd>(-1).written("[-1]").module(-1),
        Request().typed<DispenserStatusCmd>().parameters({0}).written("[0]"),
    };
    facts.answers = answers();
    return facts;
}

TEST(DispenserStatusCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(DispenserStatusCmd, takesTheLeastIntOfAnyWidthInAList)
{
    EXPECT_EQ(DispenserStatusCmd(List{-2147483648LL}).moduleID(), least);
}

TEST(DispenserStatusCmd, doesNotMistakeOtherArgumentsForAPosition)
{
    static_assert(!std::is_constructible_v<DispenserStatusCmd, bool>);
    static_assert(!std::is_constructible_v<DispenserStatusCmd, double>);
    static_assert(!std::is_constructible_v<DispenserStatusCmd, const char *>);
    static_assert(std::is_constructible_v<DispenserStatusCmd, int>);
    static_assert(!std::is_convertible_v<int, DispenserStatusCmd>);
}

TEST(DispenserStatusCmd, addressesAnotherModule)
{
    DispenserStatusCmd command;
    EXPECT_TRUE(command.setModuleID(5));
    EXPECT_EQ(command.moduleID(), 5);
    EXPECT_EQ(command.parameters(), List{5});
    EXPECT_EQ(dumped(command.xmlrpc_parameters()), "[5]");
}

TEST(DispenserStatusCmd, sendsNoParametersToAFirmwareOfAnyFamily)
{
    for (int family : {0, 1, 2, 3})
        EXPECT_EQ(DispenserStatusCmd(17).serialParameters(family), QList<int>()) << family;
}

} // namespace
