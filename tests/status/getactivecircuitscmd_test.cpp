// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/getactivecircuitscmd.h"

#include "base/commandcontract.h"
#include "catalogue/commandfacts.h"
#include "status/getactivecircuitsanswer.h"

#include <limits>
#include <type_traits>

namespace {

using namespace testing_base;

using Cmd = GetActiveCircuitsCmd;

constexpr char notCreated[] = "Failed to create GetActiveCircuitsAnswer";
constexpr char failed[] = "Error during command answer decoding";
constexpr char invalid[] = "GetActiveCircuitsCmd: invalid parameter";

CircuitProcess process(int number)
{
    return static_cast<CircuitProcess>(number);
}

AnswerFacts answers()
{
    AnswerFacts answers = serialAnswers();
    answers.tokens =
        AnswerOfTokens("GetActiveCircuitsAnswer", {"4", "1", "2", "11", "3"},
                       R"({"circuit_process": 13, "positions_id": [17], "stall_levels": [[17, 3]], )"
                       R"("status_type_mask": 0})")
            .failsWith("DE02456", notCreated)
            .refuses({"3", "1", "1", "11"}, "DE02564", failed,
                     "GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(QStringList, CircuitProcess)");
    answers.value =
        AnswerOfValue("GetActiveCircuitsAnswer",
                      structOf({{"circuit_process", Value(2)}, {"positions_id", arrayOf(17)}}),
                      R"({"circuit_process": 2, "positions_id": [17], "status_type_mask": 0})")
            .failsWith("DE02454", notCreated)
            .refuses(Value(0), "DE02451", failed,
                     "GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList("GetActiveCircuitsAnswer", {13, 17},
                                R"({"circuit_process": 0, "positions_id": [], "status_type_mask": 0})")
                       .failsWith("DE02455", notCreated)
                       .refusesNothing();
    answers.envelope = {"DE02457", notCreated};
    return answers;
}

const std::vector<Gate> commandGates = {
    {{63, 38}, false}, {{63, 39}, true},  {{63, 40}, true},  {{67, 3}, false},  {{67, 4}, true},
    {{68, 3}, false},  {{68, 4}, true},   {{69, 3}, false},  {{69, 4}, true},   {{70, 2}, false},
    {{70, 3}, true},   {{70, 4}, true},   {{50, 1}, false},  {{50, 2}, true},   {{50, 3}, true},
    {{72, 0}, true},   {{72, 99}, true},  {{51, 99}, false}, {{62, 99}, false}, {{64, 99}, false},
    {{66, 99}, false}, {{71, 99}, false}, {{73, 99}, false}, {{0, 99}, false},
};

CommandFacts facts()
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"GET_ACTIVE_CIRCUITS", 131, "001A", 1};
    facts.protoType = 1;
    facts.valueFunction = "GetActiveCircuitsCmd::GetActiveCircuitsCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "GetActiveCircuitsCmd::GetActiveCircuitsCmd(QList<QVariant>)";
    facts.arguments = {
        required(Integer, {"DE02452", "DE02453", invalid})
            .outOfRange({0, 14, -1, 245, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()},
                        {"DE02452", "DE02453", invalid})
            .takes({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13})};
    facts.defaults = Request().parameters({0}).written("[0]").sends({0});
    facts.requests = {Request({13}).typed<Cmd>(process(13)).written("[13]").sends({13}),
                      Request({1}).typed<Cmd>(process(1)).written("[1]").sends({1})};
    facts.answers = answers();
    facts.firmware = commandGates;
    return facts;
}

TEST(GetActiveCircuitsCmd, keepsTheCommandContract)
{
    expectCommandContract(facts());
}

TEST(GetActiveCircuitsCmd, knowsItsProcess)
{
    EXPECT_EQ(Cmd().circuitProcess(), process(0));
    EXPECT_EQ(Cmd(process(11)).circuitProcess(), process(11));
    EXPECT_EQ(Cmd(List{7}).circuitProcess(), process(7));
    EXPECT_EQ(Cmd(process(14)).circuitProcess(), process(14)) << "who names a process is believed";
    static_assert(!std::is_convertible_v<CircuitProcess, Cmd>);
    EXPECT_EQ(Cmd(process(1)).commandString(), "");
}

TEST(GetActiveCircuitsCmd, checksAProcess)
{
    for (int number = 1; number <= 13; ++number)
        EXPECT_TRUE(Cmd::checkCircuitProcess(number)) << number;
    for (int number : {0, 14, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_FALSE(Cmd::checkCircuitProcess(number)) << number;
}

TEST(GetActiveCircuitsCmd, readsTheTokensOfItsProcess)
{
    const QStringList tokens = {"4", "1", "2", "11", "3"};
    Cmd valves(process(11));
    EXPECT_TRUE(valves.setSerialAnswer(tokens, nullptr));
    EXPECT_EQ(dynamic_cast<const GetActiveCircuitsAnswer &>(*valves.getProtoAnswer()).nozzleValvePositions(),
              (QList<QPair<int, int>>{{17, 3}}));
    Cmd engaged(process(1));
    EXPECT_TRUE(engaged.setSerialAnswer(tokens, nullptr));
    EXPECT_EQ(dynamic_cast<const GetActiveCircuitsAnswer &>(*engaged.getProtoAnswer()).statusTypeMasks(),
              QList<int>{3});
}

TEST(GetActiveCircuitsCmd, isExplainedWithAllItsFailures)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_ACTIVE_CIRCUITS");
    EXPECT_EQ(facts.answerClass, "GetActiveCircuitsAnswer");
    QStringList codes;
    for (const quv::RefusalFacts &refusal : facts.answerRefusals)
        codes.append(refusal.form + ' ' + refusal.code);
    EXPECT_EQ(codes, (QStringList{"tokens DE02456", "XML-RPC DE02454", "list DE02455", "envelope DE02457"}));
}

// ---------------------------------------------------------------- firmware

TEST(GetActiveCircuitsCmd, isAskedOfFirmwareThatHasIt)
{
    for (const Gate &gate : commandGates)
        EXPECT_EQ(Cmd::isCommandSupported(gate.version), gate.isSupported)
            << gate.version.toString().toStdString();
    EXPECT_FALSE(Cmd::isCommandSupported(FW_Version()));
}

/** What firmware of these versions tells of some processes. */
void expectProcesses(const std::vector<int> &numbers, const std::vector<Gate> &gates)
{
    for (int number : numbers) {
        SCOPED_TRACE(number);
        for (const Gate &gate : gates)
            EXPECT_EQ(Cmd::isCircuitProcessSupported(process(number), gate.version), gate.isSupported)
                << gate.version.toString().toStdString();
        EXPECT_FALSE(Cmd::isCircuitProcessSupported(process(number), FW_Version()));
    }
}

TEST(GetActiveCircuitsCmd, hasItsProcessesInFirmwareOfDifferentAge)
{
    expectProcesses({1}, {{{63, 38}, false},
                          {{63, 39}, true},
                          {{67, 4}, false},
                          {{67, 5}, true},
                          {{67, 6}, true},
                          {{68, 3}, false},
                          {{68, 4}, true},
                          {{69, 3}, false},
                          {{69, 4}, true},
                          {{70, 2}, false},
                          {{70, 3}, true},
                          {{50, 1}, false},
                          {{50, 2}, true},
                          {{72, 4}, false},
                          {{72, 5}, true},
                          {{72, 6}, true},
                          {{64, 99}, false},
                          {{71, 99}, false}});
    expectProcesses({2, 3, 4, 5, 6, 7, 8}, commandGates);
    expectProcesses({9, 11}, {{{72, 0}, true},
                              {{72, 4}, true},
                              {{63, 99}, false},
                              {{67, 99}, false},
                              {{68, 99}, false},
                              {{69, 99}, false},
                              {{70, 99}, false},
                              {{50, 99}, false},
                              {{71, 99}, false}});
    expectProcesses({10, 12}, {{{63, 38}, false},
                               {{63, 39}, false},
                               {{63, 40}, true},
                               {{63, 41}, true},
                               {{67, 99}, false},
                               {{68, 99}, false},
                               {{69, 99}, false},
                               {{70, 99}, false},
                               {{50, 99}, false},
                               {{72, 99}, false}});
    expectProcesses({13}, {{{63, 39}, false},
                           {{63, 40}, false},
                           {{63, 41}, true},
                           {{63, 42}, true},
                           {{70, 2}, false},
                           {{70, 3}, true},
                           {{70, 4}, true},
                           {{67, 99}, false},
                           {{68, 99}, false},
                           {{69, 99}, false},
                           {{50, 99}, false},
                           {{72, 99}, false}});
    expectProcesses({0, 14, -1, 99}, {{{63, 99}, false}, {{72, 99}, false}, {{50, 99}, false}});
}

} // namespace
