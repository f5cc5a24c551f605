// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getturntablepositionsanswer.h"

#include "base/basetesting.h"
#include "base/outofmemory.h"
#include "base/serialprotocommand.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetTurntablePositionsAnswer;
using Circuits = QList<TTCircuitData>;

constexpr char ofTokens[] = "GetTurntablePositionsAnswer::GetTurntablePositionsAnswer(QStringList)";
constexpr char ofValue[] =
    "GetTurntablePositionsAnswer::GetTurntablePositionsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetTurntablePositionsAnswer::GetTurntablePositionsAnswer(QList<QVariant>&)";
constexpr char ofCircuit[] = "TTCircuitData::TTCircuitData(const XmlRpc::XmlRpcValue&)";

constexpr char badAnswer[] = "Error during turntable positions answer decoding: bad answer received";
constexpr char noList[] = "GetTurntablePositionsAnswer: Errors during TTCircuitData list creation";
constexpr char noCircuit[] =
    "GetTurntablePositionsAnswer decoding failed: invalid QVariant value (expected TTCircuitData)";

/** The firmware's answer with these parameters: their number comes first. */
QStringList answerWith(const QStringList &parameters)
{
    return QStringList(QString::number(parameters.size(), 16)) + parameters;
}

/** Position 5 at step 300 with a fin of 30; position 17 at step 12800, 4294967296 wide. */
const QStringList twoCircuits = {"2",                                                      // circuits
                                 "5",  "2", "36", "1",  "1", "1E",                         // the first
                                 "11", "2", "8",  "34", "5", "A0", "68", "7C", "2a", "1"}; // the second

Circuits readCircuits()
{
    return {TTCircuitData(5, 300, 30), TTCircuitData(17, 12800, 4294967296LL)};
}

void expectTokensRefused(const char *code, const QStringList &parameters)
{
    SCOPED_TRACE(parameters.join(' ').toStdString());
    expectRefusal(code, badAnswer, ofTokens, [&] { const Answer answer(answerWith(parameters)); });
}

Value circuitStruct(int position, int steps, int fin)
{
    return structOf({{"position_id", position}, {"steps_pos", steps}, {"fin_size", fin}});
}

QVariant variantOf(const TTCircuitData &circuit)
{
    return QVariant::fromValue(circuit);
}

// ---------------------------------------------------------------- tokens

TEST(GetTurntablePositionsAnswer, readsTheCircuits)
{
    const Answer answer(answerWith(twoCircuits));
    EXPECT_EQ(answer.turntableCircuits(), readCircuits());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters(), twoCircuits);
}

TEST(GetTurntablePositionsAnswer, readsATableWithoutCircuits)
{
    for (const QStringList &parameters : {QStringList{"0"}, QStringList{"00"}, QStringList{"0", "x", "7"}}) {
        SCOPED_TRACE(parameters.join(' ').toStdString());
        EXPECT_EQ(Answer(answerWith(parameters)).turntableCircuits(), Circuits());
    }
}

TEST(GetTurntablePositionsAnswer, readsNumbersOfNoDigitsAsZero)
{
    EXPECT_EQ(Answer(answerWith({"1", "5", "0", "0"})).turntableCircuits(), Circuits{TTCircuitData(5, 0, 0)});
    EXPECT_EQ(Answer(answerWith({"1", "5", "0", "1", "9"})).turntableCircuits(),
              Circuits{TTCircuitData(5, 0, 9)});
    EXPECT_EQ(Answer(answerWith({"1", "5", "1", "9", "0"})).turntableCircuits(),
              Circuits{TTCircuitData(5, 9, 0)});
}

TEST(GetTurntablePositionsAnswer, readsTheGreatestNumber)
{
    const QStringList greatest = {"7", "4A", "8B", "97", "3B", "6", "9E", "28"}; // 2^53
    const Answer answer(answerWith(QStringList{"1", "5"} + greatest + greatest));
    EXPECT_EQ(answer.turntableCircuits(), Circuits{TTCircuitData(5, 9007199254740992LL, 9007199254740992LL)});
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
}

TEST(GetTurntablePositionsAnswer, refusesNumbersThatADoubleDoesNotHold)
{
    for (const QStringList &digits :
         {QStringList{"7", "4B", "8B", "97", "3B", "6", "9E", "28"},          // 2^53 + 1
          QStringList{"8", "7", "D2", "DF", "26", "F2", "C3", "2B", "A9"},    // 2^63 - 1
          QStringList{"8", "8", "D2", "DF", "26", "F2", "C3", "2B", "A9"}}) { // 2^63
        expectTokensRefused("DE01753", QStringList{"1", "5"} + digits + QStringList{"0"});
        expectTokensRefused("DE01755", QStringList{"1", "5", "0"} + digits);
    }
}

TEST(GetTurntablePositionsAnswer, leavesWhatFollowsUnread)
{
    EXPECT_EQ(Answer(answerWith(twoCircuits + QStringList{"x", "7"})).turntableCircuits(), readCircuits());
    EXPECT_EQ(Answer(QStringList{"1", "0", "7"}).turntableCircuits(), Circuits());
}

TEST(GetTurntablePositionsAnswer, refusesAnAnswerThatEndsTooEarly)
{
    const char *const codes[] = {"DE01749", "DE01750", "DE01750",            // circuits, position, count
                                 "DE01753", "DE01753", "DE01754", "DE01755", // digits, count, digit
                                 "DE01750", "DE01752",                       // position, count
                                 "DE01753", "DE01753", "DE01754",            // digits, count
                                 "DE01755", "DE01755", "DE01755", "DE01755", "DE01755"};
    ASSERT_EQ(twoCircuits.size(), 17);
    for (int size = 0; size < twoCircuits.size(); ++size)
        expectTokensRefused(codes[size], twoCircuits.mid(0, size));
}

TEST(GetTurntablePositionsAnswer, refusesTokensThatAreNoNumbers)
{
    const char *const codes[] = {"DE01749", "DE01751", "DE01752", "DE01753", "DE01753", "DE01754",
                                 "DE01755", "DE01751", "DE01752", "DE01753", "DE01753", "DE01754",
                                 "DE01755", "DE01755", "DE01755", "DE01755", "DE01755"};
    for (int i = 0; i < twoCircuits.size(); ++i) {
        for (const char *bad : {"x", "", "-"}) {
            QStringList parameters = twoCircuits;
            parameters[i] = bad;
            expectTokensRefused(codes[i], parameters);
        }
    }
    expectTokensRefused("DE01751", {"1", "80000000", "0", "0"});
}

TEST(GetTurntablePositionsAnswer, asksForNoMemoryThatTheTokensDoNotFill)
{
    expectTokensRefused("DE01750", {"7FFFFFFF"});
    expectTokensRefused("DE01750", {"7FFFFFFF", "1", "0", "0"});
    expectTokensRefused("DE01749", {"80000000", "1", "0", "0"});
    expectTokensRefused("DE01749", {"-1", "1", "0", "0"});
    expectTokensRefused("DE01753", {"1", "1", "7FFFFFFF", "1"});
    expectTokensRefused("DE01752", {"1", "1", "FFFFFFFF", "1"});
    expectTokensRefused("DE01755", {"1", "1", "0", "7FFFFFFF", "1"});
}

TEST(GetTurntablePositionsAnswer, countsTheNumberOfCircuitsAmongThreeTokens)
{
    expectTokensRefused("DE01750", {"2"});
    expectTokensRefused("DE01750", {"1", "5"});
    expectTokensRefused("DE01754", {"1", "5", "0"});
}

TEST(GetTurntablePositionsAnswer, refusesWhatIsNoAnswer)
{
    constexpr char ofBase[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", ofBase, [] { const Answer answer{QStringList()}; });
    expectRefusal("DE00070", "Invalid parameter length type found in answer", ofBase, [] {
        const Answer answer{QStringList{"x", "0"}};
    });
    expectRefusal("DE00077", "Error during command answer decoding: bad length", ofBase, [] {
        const Answer answer{QStringList{"2", "0"}};
    });
}

// ---------------------------------------------------------------- values and lists

TEST(GetTurntablePositionsAnswer, travelsAsAStruct)
{
    const Answer answer(Circuits{TTCircuitData(5, 300, 30), TTCircuitData(17, 12800, 60)});
    EXPECT_EQ(dumped(answer.toXmlRpcValue()),
              R"({"turntable_circuits": [{"fin_size": 30, "position_id": 5, "steps_pos": 300}, )"
              R"({"fin_size": 60, "position_id": 17, "steps_pos": 12800}]})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"turntable_circuits": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
    const Answer fromTokens(answerWith(twoCircuits));
    EXPECT_EQ(Answer(fromTokens.toXmlRpcValue()), fromTokens);
}

TEST(GetTurntablePositionsAnswer, refusesAStructWithoutTheCircuits)
{
    for (const Value &value : {Value(), Value(0), arrayOf(circuitStruct(5, 300, 30)), structOf({}),
                               structOf({{"turntable_circuits", 7}}),
                               structOf({{"turntable_circuits", circuitStruct(5, 300, 30)}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01757", noList, ofValue, [&] { const Answer answer(value); });
    }
}

TEST(GetTurntablePositionsAnswer, passesOnWhatACircuitRefuses)
{
    const Value good = circuitStruct(5, 300, 30);
    for (const Value &bad : {Value(7), arrayOf(5, 300, 30), structOf({})}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01746", "TTCircuitData: expected position id value", ofCircuit, [&] {
            const Answer answer(structOf({{"turntable_circuits", arrayOf(good, bad)}}));
        });
    }
    expectRefusal("DE01748", "TTCircuitData: expected fin size value", ofCircuit, [&] {
        const Answer answer(structOf(
            {{"turntable_circuits", arrayOf(structOf({{"position_id", 5}, {"steps_pos", 300}}), good)}}));
    });
}

TEST(GetTurntablePositionsAnswer, refusesACircuitThatCannotBeMade)
{
    const Value value = structOf({{"turntable_circuits", arrayOf(circuitStruct(5, 300, 30))}});
    const Answer ready(value);
    expectRefusal("DE01756", "GetTurntablePositionsAnswer: errors during TTCircuitData creation", ofValue,
                  [&] { outOfMemoryOnce([&] { const Answer answer(value); }); });
}

TEST(GetTurntablePositionsAnswer, readsAListOfCircuits)
{
    List list = {variantOf(TTCircuitData(5, 300, 30)),
                 QVariantMap{{"position_id", 17}, {"steps_pos", 12800}, {"fin_size", 60}}};
    const Answer answer(list);
    EXPECT_EQ(answer.turntableCircuits(),
              (Circuits{TTCircuitData(5, 300, 30), TTCircuitData(17, 12800, 60)}));
    EXPECT_EQ(answer.protoType(), 1);
    List none;
    EXPECT_EQ(Answer(none), Answer());
}

TEST(GetTurntablePositionsAnswer, refusesAListOfOtherThings)
{
    const QVariant good = variantOf(TTCircuitData(5, 300, 30));
    for (const QVariant &bad :
         {QVariant(), QVariant(7), QVariant("5"), QVariant(List{5, 300, 30}), QVariant(List{good}),
          QVariant(QVariantMap()), QVariant(QVariantMap{{"fin_size", 30}})}) {
        SCOPED_TRACE(shown({bad}));
        for (List list : {List{bad}, List{good, bad}})
            expectRefusal("DE01758", noCircuit, ofList, [&] { const Answer answer(list); });
    }
    List list = {QVariantMap{{"position_id", 5}}};
    expectRefusal("DE01747", "TTCircuitData: expected steps position value", ofCircuit,
                  [&] { const Answer answer(list); });
}

// ---------------------------------------------------------------- the object

TEST(GetTurntablePositionsAnswer, comparesTheCircuitsInTheirOrder)
{
    const TTCircuitData first(5, 300, 30);
    const TTCircuitData second(17, 12800, 60);
    const Answer answer(Circuits{first, second});
    const Answer same = answer;
    EXPECT_EQ(answer, same);
    EXPECT_TRUE(answer.equalTo(&same));
    for (const Circuits &circuits :
         {Circuits(), Circuits{first}, Circuits{second, first}, Circuits{first, TTCircuitData(17, 12800, 61)},
          Circuits{first, second, second}}) {
        const Answer other(circuits);
        SCOPED_TRACE(dumped(other.toXmlRpcValue()));
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

TEST(GetTurntablePositionsAnswer, clonesItself)
{
    const Answer answer(answerWith(twoCircuits));
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(copy.get()), "GetTurntablePositionsAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
}

TEST(GetTurntablePositionsAnswer, isTheAnswerToItsCommand)
{
    SerialProtoCommand command("GET_TURNTABLE_POSITIONS", nullptr);
    const Answer expected(answerWith(twoCircuits));
    List list = {variantOf(readCircuits().at(0)), variantOf(readCircuits().at(1))};
    ASSERT_TRUE(command.setSerialAnswer(answerWith(twoCircuits), nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    ASSERT_TRUE(command.buildProtoAnswer(list, nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    ASSERT_TRUE(command.buildProtoAnswer(expected.toXmlRpcValue(), nullptr));
    EXPECT_TRUE(expected.equalTo(command.getProtoAnswer()));
    FW_DriverError error;
    EXPECT_FALSE(command.setSerialAnswer(answerWith({"2"}), &error));
    expectError(error, "DE01750", badAnswer);
}

} // namespace
