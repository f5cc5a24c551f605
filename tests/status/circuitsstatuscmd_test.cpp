// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/circuitsstatuscmd.h"

#include "base/commandcontract.h"
#include "base/outofmemory.h"
#include "catalogue/commandfacts.h"
#include "dispensing/dispensertesting.h"
#include "status/circuitsstatusanswer.h"
#include "status/dispenserstatuscmd.h"
#include "status/statustesting.h"

#include <QuvFramework/fw_mixer.h>

namespace {

using namespace testing_status;

constexpr char notCreated[] = "Failed to create CircuitsStatusAnswer";
constexpr char notThere[] = "One or more positions ID not present or disabled";
constexpr char badParameter[] = "Bad command parameter";
constexpr char ofTyped[] = "CircuitsStatusCmd::CircuitsStatusCmd(QList<int>, const FW_Dispenser*)";
constexpr char ofValue[] =
    "CircuitsStatusCmd::CircuitsStatusCmd(const XmlRpc::XmlRpcValue&, const FW_Dispenser*)";
constexpr char ofList[] = "CircuitsStatusCmd::CircuitsStatusCmd(QList<QVariant>, const FW_Dispenser*)";
constexpr char allWritten[] = R"([{"circuit_positions": [1, 2, 3, 4]}])";

using Positions = QList<int>;

const FW_Dispenser *const noDispenser = nullptr;

Value positions(const Value &array)
{
    return arrayOf(structOf({{"circuit_positions", array}}));
}

DispenserStatusAnswer tinting()
{
    DispenserStatusAnswer status(idleStruct());
    status.tinting = true;
    return status;
}

AnswerFacts answers()
{
    Value status = idleStruct();
    status["tinting"] = true;
    const Value element = structOf({{"position_id", Value(3)}, {"status_answer", asWritten(status)}});
    const Value answer = structOf({{"circuits_status_answers", arrayOf(element)}});
    AnswerFacts answers = serialAnswers(); // the firmware answers the single commands
    answers.value = AnswerOfValue("CircuitsStatusAnswer", answer, dumped(answer))
                        .failsWith("DE00771", notCreated)
                        .refuses(Value(0), "DE01173",
                                 "CircuitsStatusAnswer: invalid DispenserStatusAnswersList parameter",
                                 "CircuitsStatusAnswer::CircuitsStatusAnswer(const XmlRpc::XmlRpcValue&)");
    answers.list = AnswerOfList("CircuitsStatusAnswer", {1}, R"({"circuits_status_answers": []})")
                       .failsWith("DE01262", notCreated)
                       .refusesNothing();
    answers.envelope = {"DE01161", notCreated};
    answers.gathersReadyAnswers = true;
    return answers;
}

CommandFacts facts(const FW_Dispenser *dispenser)
{
    CommandFacts facts(formsOf<CircuitsStatusCmd>(dispenser));
    facts.catalogue = {"GET_CIRCUITS_STATUS", 2, "", 0};
    facts.protoType = 1;
    facts.readsByHand = true;
    facts.words = silence();
    facts.defaults = Request().written("[]");
    facts.requests = {
        Request({3, 1})
            .value(positions(arrayOf(3, 1)))
            .typed<CircuitsStatusCmd>(Positions{3, 1}, dispenser)
            .written(R"([{"circuit_positions": [3, 1]}])"),
        Request({4})
            .value(arrayOf(4))
            .typed<CircuitsStatusCmd>(Positions{4}, dispenser)
            .written(R"([{"circuit_positions": [4]}])"),
    };
    facts.answers = answers();
    return facts;
}

TEST(CircuitsStatusCmd, keepsTheCommandContractWithoutADispenser)
{
    CommandFacts told = facts(nullptr);
    told.requests.push_back(Request().typed<CircuitsStatusCmd>(Positions(), noDispenser).written("[]"));
    told.requests.push_back(Request({99, -1, 99}) // nobody knows better
                                .value(positions(arrayOf(99, -1, 99)))
                                .written(R"([{"circuit_positions": [99, -1, 99]}])"));
    expectCommandContract(told);
}

TEST(CircuitsStatusCmd, keepsTheCommandContractWithADispenser)
{
    const FW_Dispenser dispenser = testing_dispensing::dispenser();
    CommandFacts told = facts(&dispenser);
    const FW_Dispenser *const machine = &dispenser;
    told.requests.push_back(Request()
                                .typed<CircuitsStatusCmd>(Positions(), machine)
                                .parameters({1, 2, 3, 4})
                                .written(allWritten));
    expectCommandContract(told);
}

TEST(CircuitsStatusCmd, asksForAllEnabledCircuitsWithoutAPosition)
{
    const FW_Dispenser dispenser = testing_dispensing::withDisabledCircuit(2);
    const Positions enabled = {1, 3, 4};
    EXPECT_EQ(CircuitsStatusCmd(Positions(), &dispenser).positions(), enabled);
    EXPECT_EQ(CircuitsStatusCmd(arrayOf(), &dispenser).positions(), enabled);
    EXPECT_EQ(CircuitsStatusCmd(positions(arrayOf()), &dispenser).positions(), enabled);
    EXPECT_EQ(CircuitsStatusCmd(List(), &dispenser).positions(), enabled);
    EXPECT_EQ(CircuitsStatusCmd(arrayOf(), noDispenser).positions(), Positions());
    EXPECT_EQ(CircuitsStatusCmd().positions(), Positions());
}

// DE01175, of a dispenser that cannot list its positions, is the contract in all three forms: only Qt's lists could fail, and they
// take their memory without operator new.

TEST(CircuitsStatusCmd, takesASinglePositionOrAStruct)
{
    EXPECT_EQ(CircuitsStatusCmd(arrayOf(17), noDispenser).positions(), Positions{17});
    EXPECT_EQ(CircuitsStatusCmd(positions(arrayOf(17, 2, 17)), noDispenser).positions(),
              (Positions{17, 2, 17}));
    EXPECT_EQ(CircuitsStatusCmd(positions(arrayOf()), noDispenser).positions(), Positions());
    EXPECT_EQ(CircuitsStatusCmd(arrayOf(17, "rest"), noDispenser).positions(), Positions{17});
    EXPECT_EQ(CircuitsStatusCmd(List{17, 2LL, 5U}, noDispenser).positions(), (Positions{17, 2, 5}));
}

TEST(CircuitsStatusCmd, refusesAnyOtherArgument)
{
    for (const Value &other : {Value(true), Value(7.0), Value("7"), arrayOf(7)}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE01155", badParameter, ofValue,
                      [&] { const CircuitsStatusCmd command(arrayOf(other), noDispenser); });
    }
    for (const Value &other :
         {structOf({}), structOf({{"positions", arrayOf(7)}}), structOf({{"circuit_positions", Value(7)}}),
          structOf({{"circuit_positions", structOf({})}})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE01156", badParameter, ofValue,
                      [&] { const CircuitsStatusCmd command(arrayOf(other), noDispenser); });
    }
    for (const Value &other : {Value(true), Value(7.0), Value("7"), arrayOf(7), structOf({})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE01157", badParameter, ofValue,
                      [&] { const CircuitsStatusCmd command(positions(arrayOf(1, other)), noDispenser); });
    }
    for (const QVariant &other : {QVariant(), QVariant(true), QVariant(7.0), QVariant("7"), QVariant(List{7}),
                                  QVariant(2147483648LL)}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE01159", "Positions ID: expected INT parameter", ofList, [&] {
            const CircuitsStatusCmd command(List{1, other}, noDispenser);
        });
    }
}

TEST(CircuitsStatusCmd, refusesPositionsThatTheDispenserDoesNotHaveEnabled)
{
    const FW_Dispenser dispenser = testing_dispensing::withDisabledCircuit(2);
    for (int bad : {2, 5, 0, -1}) {
        SCOPED_TRACE(bad);
        expectRefusal("DE01154", notThere, ofTyped, [&] {
            const CircuitsStatusCmd command(Positions{1, bad}, &dispenser);
        });
        expectRefusal("DE01158", notThere, ofValue,
                      [&] { const CircuitsStatusCmd command(arrayOf(bad), &dispenser); });
        expectRefusal("DE01158", notThere, ofValue,
                      [&] { const CircuitsStatusCmd command(positions(arrayOf(1, bad)), &dispenser); });
        expectRefusal("DE01160", notThere, ofList, [&] {
            const CircuitsStatusCmd command(List{1, bad}, &dispenser);
        });
    }
    // what is no position is told before what is not there
    expectRefusal("DE01157", badParameter, ofValue,
                  [&] { const CircuitsStatusCmd command(positions(arrayOf(2, "7")), &dispenser); });
    expectRefusal("DE01159", "Positions ID: expected INT parameter", ofList, [&] {
        const CircuitsStatusCmd command(List{2, "7"}, &dispenser);
    });
}

TEST(CircuitsStatusCmd, hasNeitherCodeNorIntegers)
{
    for (int family : {0, 1, 2})
        EXPECT_EQ(CircuitsStatusCmd(Positions{3, 1}, noDispenser).serialParameters(family), QList<int>());
    EXPECT_EQ(CircuitsStatusCmd(Positions{3, 1}, noDispenser).moduleID(), 0);
}

TEST(CircuitsStatusCmd, isExplained)
{
    const quv::CommandFacts facts = quv::commandFacts("GET_CIRCUITS_STATUS");
    EXPECT_EQ(facts.className, "CircuitsStatusCmd");
    EXPECT_EQ(facts.answerClass, "CircuitsStatusAnswer");
    ASSERT_EQ(facts.arguments.size(), 1);
    EXPECT_TRUE(facts.arguments.at(0).optional);
    EXPECT_EQ(dumped(facts.arguments.at(0).defaultValue), R"({"circuit_positions": []})");
    EXPECT_EQ(facts.arguments.at(0).refusals.size(), 6);
}

// ---------------------------------------------------------------- gathering

/** What a command has gathered: positions, "*" behind those that tint. */
QString gathered(const CircuitsStatusCmd &command)
{
    const auto *answer = dynamic_cast<const CircuitsStatusAnswer *>(command.getProtoAnswer());
    if (!answer)
        return command.getProtoAnswer() ? "another answer" : "nothing";
    QStringList texts;
    for (const auto &entry : answer->answers().answers())
        texts.append(QString::number(entry.first) + (entry.second.tinting ? "*" : ""));
    return texts.join(' ');
}

TEST(CircuitsStatusCmd, gathersTheAnswersToTheSingleCommands)
{
    CircuitsStatusCmd command(Positions{3, 1}, noDispenser);
    DispenserStatusCmd third(3);
    DispenserStatusCmd first(1);
    DispenserStatusAnswer status = tinting();
    DispenserStatusAnswer idle(idleStruct());
    FW_DriverError error;
    EXPECT_EQ(gathered(command), "nothing");
    EXPECT_TRUE(command.setAnswer(&status, &third, &error));
    EXPECT_EQ(gathered(command), "3*");
    EXPECT_TRUE(command.setAnswer(&idle, &first, nullptr));
    EXPECT_EQ(gathered(command), "3* 1");
    EXPECT_TRUE(command.setAnswer(&idle, &third, &error));
    EXPECT_EQ(gathered(command), "3* 1 3");
    expectError(error, "", "");
    status.tinting = false;
    EXPECT_EQ(gathered(command), "3* 1 3") << "a copy of what it was given";

    ProtoCommand *const asBase = &command;
    EXPECT_TRUE(asBase->setAnswer(&idle, &first, &error));
    EXPECT_EQ(gathered(command), "3* 1 3 1");
    command.clearProtoAnswer();
    EXPECT_TRUE(command.setAnswer(&idle, &first, &error));
    EXPECT_EQ(gathered(command), "1");
}

TEST(CircuitsStatusCmd, passesOverOtherAnswers)
{
    CircuitsStatusCmd command(Positions{3}, noDispenser);
    DispenserStatusCmd single(3);
    SerialProtoAnswer other;
    FW_DriverError error;
    EXPECT_TRUE(command.setAnswer(&other, &single, &error));
    EXPECT_TRUE(command.setAnswer(nullptr, &single, &error));
    EXPECT_EQ(gathered(command), "nothing");
    DispenserStatusAnswer idle(idleStruct());
    EXPECT_TRUE(command.setAnswer(&idle, &single, &error));
    EXPECT_TRUE(command.setAnswer(&other, nullptr, &error));
    EXPECT_EQ(gathered(command), "3");
    expectError(error, "", "");
}

TEST(CircuitsStatusCmd, needsTheSingleCommand)
{
    CircuitsStatusCmd command(Positions{3}, noDispenser);
    DispenserStatusCmd single(3);
    SerialProtoCommand other("GET_STATUS", nullptr);
    DispenserStatusAnswer idle(idleStruct());
    for (const QString &held : {QString("nothing"), QString("3")}) {
        for (ProtoCommand *wrong :
             {static_cast<ProtoCommand *>(nullptr), static_cast<ProtoCommand *>(&other)}) {
            FW_DriverError error;
            EXPECT_FALSE(command.setAnswer(&idle, wrong, &error));
            expectError(error, "DE01174", "Invalid status objects");
            EXPECT_FALSE(command.setAnswer(&idle, wrong, nullptr));
            EXPECT_EQ(gathered(command), held);
        }
        EXPECT_TRUE(command.setAnswer(&idle, &single, nullptr));
    }
}

TEST(CircuitsStatusCmd, keepsAnAnswerOfAnotherKind)
{
    CircuitsStatusCmd command(Positions{3}, noDispenser);
    DispenserStatusCmd single(3);
    DispenserStatusAnswer idle(idleStruct());
    SerialProtoAnswer other;
    command.setProtoAnswer(&other);
    FW_DriverError error;
    EXPECT_FALSE(command.setAnswer(&idle, &single, &error));
    expectError(error, "DE01164", notCreated);
    EXPECT_FALSE(command.setAnswer(&idle, &single, nullptr));
    EXPECT_EQ(gathered(command), "another answer");
}

TEST(CircuitsStatusCmd, tellsThatThereIsNoMemory)
{
    CircuitsStatusCmd command(Positions{3, 1}, noDispenser);
    DispenserStatusCmd single(3);
    DispenserStatusAnswer idle(idleStruct());
    FW_DriverError error;
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(&idle, &single, &error); }));
    expectError(error, "DE01162", notCreated);
    EXPECT_EQ(gathered(command), "nothing");
    EXPECT_TRUE(command.setAnswer(&idle, &single, nullptr));

    error = FW_DriverError();
    EXPECT_FALSE(outOfMemoryOnce([&] { return command.setAnswer(&idle, &single, &error); }));
    expectError(error, "DE01163", notCreated);
    EXPECT_EQ(gathered(command), "3");
}

} // namespace
