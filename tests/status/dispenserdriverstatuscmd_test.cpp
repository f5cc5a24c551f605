// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserdriverstatuscmd.h"

#include "base/commandcontract.h"
#include "status/driverstatustesting.h"

#include <type_traits>

namespace {

using namespace testing_status;

constexpr char notMade[] = "Failed to create DispenserDriverStatusAnswer";

AnswerFacts answers()
{
    constexpr char noStatus[] = "DispenserDriverStatusAnswer: Errors during DispenserStatus creation";
    const std::string written = "{\"disp_status\": 0, \"driver_status\": " + dispenserStatusDump() +
                                ", \"pos_available\": false, \"pos_ready\": false}";
    AnswerFacts answers = confAnswers();
    answers.value =
        AnswerOfValue("DispenserDriverStatusAnswer",
                      structOf({{"driver_status", dispenserStatusStruct()}, {"disp_status", 0}}), written)
            .failsWith("DE03212", notMade)
            .refuses(Value(0), "DE00735", noStatus,
                     "DispenserDriverStatusAnswer::DispenserDriverStatusAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList("DispenserDriverStatusAnswer",
                                {QVariant::fromValue(filledDispenserStatus()), 0}, written)
                       .failsWith("DE03213", notMade)
                       .refuses({}, "DE00735", noStatus,
                                "DispenserDriverStatusAnswer::DispenserDriverStatusAnswer(QList<QVariant>&)");
    return answers;
}

CommandFacts facts()
{
    CommandFacts facts(formsOf<DispenserDriverStatusCmd>());
    facts.catalogue = {"GET_DISP_STATUS", 1, "", 0};
    facts.protoType = 2;
    facts.valueFunction = "DispenserDriverStatusCmd::DispenserDriverStatusCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "DispenserDriverStatusCmd::DispenserDriverStatusCmd(QList<QVariant>)";
    facts.arguments = {optional(Integer, {"DE00498", "DE00498", "Position ID: expected INT parameter"})
                           .takes({0, 1, 17, -1, 2147483647})};
    facts.getters = {getter(&DispenserDriverStatusCmd::positionID)};
    facts.words = silence();
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {Request({17}).typed<DispenserDriverStatusCmd>(17).written("[17]"),
                      Request().typed<DispenserDriverStatusCmd>().parameters({0}).written("[0]")};
    facts.answers = answers();
    return facts;
}

TEST(DispenserDriverStatusCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(DispenserDriverStatusCmd, doesNotMistakeOtherArgumentsForAPosition)
{
    static_assert(!std::is_constructible_v<DispenserDriverStatusCmd, bool>);
    static_assert(!std::is_constructible_v<DispenserDriverStatusCmd, double>);
    static_assert(!std::is_constructible_v<DispenserDriverStatusCmd, const char *>);
    static_assert(!std::is_convertible_v<int, DispenserDriverStatusCmd>);
}

} // namespace
