// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/getactivecircuitsanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

using Answer = GetActiveCircuitsAnswer;
using Pairs = QList<QPair<int, int>>;

constexpr char ofTokens[] = "GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(QStringList, CircuitProcess)";
constexpr char ofValue[] = "GetActiveCircuitsAnswer::GetActiveCircuitsAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char failed[] = "Error during command answer decoding";

CircuitProcess process(int number)
{
    return static_cast<CircuitProcess>(number);
}

/** Three positions, each with a second value. */
const QStringList three = {"8", "3", "2", "1", "3", "11", "1", "2", "2"};

Value pairs()
{
    return arrayOf(arrayOf(1, 3), arrayOf(17, 1));
}

TEST(GetActiveCircuitsAnswer, startsCleared)
{
    const Answer answer;
    EXPECT_EQ(answer.positionsID(), QList<int>());
    EXPECT_EQ(answer.nozzleValvePositions(), Pairs());
    EXPECT_EQ(answer.circuitProcess(), process(0));
    EXPECT_EQ(answer.statusTypeMasks(), QList<int>());
    EXPECT_EQ(answer.stallLevelsPos(), Pairs());
    EXPECT_EQ(answer.protoType(), 1);
}

TEST(GetActiveCircuitsAnswer, isMadeOfAProcessAndPositions)
{
    const Answer answer(process(3), {4, 2});
    EXPECT_EQ(answer.circuitProcess(), process(3));
    EXPECT_EQ(answer.positionsID(), (QList<int>{4, 2}));
    EXPECT_EQ(answer.statusTypeMasks(), QList<int>());
    EXPECT_EQ(answer.protoType(), 1);
}

TEST(GetActiveCircuitsAnswer, readsNothingOfAList)
{
    List list = {1, 2, 3};
    EXPECT_EQ(Answer(list), Answer());
    EXPECT_EQ(Answer(list).protoType(), 1);
}

TEST(GetActiveCircuitsAnswer, isCleared)
{
    for (int number : {1, 11, 13}) {
        Answer answer(three, process(number));
        EXPECT_NE(answer, Answer());
        answer.clear();
        EXPECT_EQ(answer, Answer());
        EXPECT_EQ(answer.circuitProcess(), process(0));
    }
}

// ---------------------------------------------------------------- tokens

TEST(GetActiveCircuitsTokens, tellOfMostProcessesHowACircuitIsEngaged)
{
    for (int number : {0, 1, 2, 8, 9, 10, 12, 14}) {
        SCOPED_TRACE(number);
        const Answer answer(three, process(number));
        EXPECT_EQ(answer.positionsID(), (QList<int>{1, 17, 2}));
        EXPECT_EQ(answer.statusTypeMasks(), (QList<int>{3, 1, 2}));
        EXPECT_EQ(answer.nozzleValvePositions(), Pairs());
        EXPECT_EQ(answer.stallLevelsPos(), Pairs());
        EXPECT_EQ(answer.circuitProcess(), process(number));
        EXPECT_EQ(answer.protoType(), 1);
        EXPECT_EQ(answer.serialParameters(), three.mid(1));
    }
}

TEST(GetActiveCircuitsTokens, tellOfProcess11WhereTheNozzleValveIs)
{
    const Answer answer(three, process(11));
    EXPECT_EQ(answer.positionsID(), (QList<int>{1, 17, 2}));
    EXPECT_EQ(answer.nozzleValvePositions(), (Pairs{{1, 3}, {17, 1}, {2, 2}}));
    EXPECT_EQ(answer.statusTypeMasks(), QList<int>());
    EXPECT_EQ(answer.stallLevelsPos(), Pairs());
}

TEST(GetActiveCircuitsTokens, tellOfProcess13TheStallLevel)
{
    const Answer answer(three, process(13));
    EXPECT_EQ(answer.positionsID(), (QList<int>{1, 17, 2}));
    EXPECT_EQ(answer.stallLevelsPos(), (Pairs{{1, 3}, {17, 1}, {2, 2}}));
    EXPECT_EQ(answer.statusTypeMasks(), QList<int>());
    EXPECT_EQ(answer.nozzleValvePositions(), Pairs());
}

TEST(GetActiveCircuitsTokens, mayTellOfNoCircuit)
{
    for (int number : {1, 11, 13}) {
        for (const char *valuesPerPosition : {"2", "1", "0"}) {
            const Answer answer(QStringList{"2", "0", valuesPerPosition}, process(number));
            EXPECT_EQ(answer, Answer(process(number), {}));
            EXPECT_EQ(answer.circuitProcess(), process(number));
        }
    }
}

TEST(GetActiveCircuitsTokens, areRefusedAtEachTokenAtWhichTheyMayEnd)
{
    const char *codes[] = {"DE02449", "DE02563", "DE02450", "DE02629",
                           "DE02450", "DE02629", "DE02450", "DE02629"};
    for (int number : {1, 11, 13}) {
        SCOPED_TRACE(number);
        for (int count = 1; count < three.size(); ++count) {
            QStringList tokens = three.mid(0, count);
            tokens[0] = QString::number(count - 1, 16);
            expectRefusal(codes[count - 1], failed, ofTokens,
                          [&] { const Answer answer(tokens, process(number)); });
        }
        expectRefusal("DE00076", "Empty answer received", "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                      [&] { const Answer answer(QStringList(), process(number)); });
    }
    EXPECT_EQ(Answer(three + QStringList{"4", "zz"}, process(1)), Answer(three, process(1)))
        << "the rest is not read";
}

TEST(GetActiveCircuitsTokens, areRefusedOneByOne)
{
    const char *codes[] = {"DE02449", "DE02563", "DE02450", "DE02629",
                           "DE02450", "DE02629", "DE02450", "DE02629"};
    for (const char *bad : {"zz", "", "-1", "80000000"}) {
        SCOPED_TRACE(bad);
        QStringList tokens = three;
        for (int i = tokens.size() - 1; i > 0; --i) { // of several the first is told
            tokens[i] = bad;
            expectRefusal(codes[i - 1], failed, ofTokens, [&] { const Answer answer(tokens, process(13)); });
        }
    }
}

TEST(GetActiveCircuitsTokens, areRefusedWithOneValuePerPosition)
{
    for (const char *valuesPerPosition : {"1", "0"}) {
        SCOPED_TRACE(valuesPerPosition);
        expectRefusal("DE02564", failed, ofTokens, [&] {
            const Answer answer(QStringList{"3", "1", valuesPerPosition, "7"}, process(1));
        });
        expectRefusal("DE02450", failed, ofTokens, [&] {
            const Answer answer(QStringList{"2", "1", valuesPerPosition}, process(1));
        });
        expectRefusal("DE02450", failed, ofTokens, [&] {
            const Answer answer(QStringList{"3", "1", valuesPerPosition, "zz"}, process(1));
        });
    }
}

TEST(GetActiveCircuitsTokens, areNotBelievedWhenTheyCountMoreThanThereAre)
{
    expectRefusal("DE02450", failed, ofTokens, [] {
        const Answer answer(QStringList{"4", "7fffffff", "2", "1", "3"}, process(1));
    });
}

// ---------------------------------------------------------------- XML-RPC

TEST(GetActiveCircuitsXmlRpc, tellsListsThatHaveEntries)
{
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()),
              R"({"circuit_process": 0, "positions_id": [], "status_type_mask": 0})");
    EXPECT_EQ(dumped(Answer(process(3), {4, 2}).toXmlRpcValue()),
              R"({"circuit_process": 3, "positions_id": [4, 2], "status_type_mask": 0})");
    EXPECT_EQ(dumped(Answer(three, process(5)).toXmlRpcValue()),
              R"({"circuit_process": 5, "positions_id": [1, 17, 2], "status_type_mask": 3, )"
              R"("status_type_masks": [3, 1, 2]})");
    EXPECT_EQ(dumped(Answer(three, process(11)).toXmlRpcValue()),
              R"({"circuit_process": 11, "nozzle_valve_positions": [[1, 3], [17, 1], [2, 2]], )"
              R"("positions_id": [1, 17, 2], "status_type_mask": 0})");
    EXPECT_EQ(
        dumped(Answer(three, process(13)).toXmlRpcValue()),
        R"({"circuit_process": 13, "positions_id": [1, 17, 2], "stall_levels": [[1, 3], [17, 1], [2, 2]], )"
        R"("status_type_mask": 0})");
}

TEST(GetActiveCircuitsXmlRpc, readsItsMembers)
{
    const Answer answer(structOf({{"positions_id", arrayOf(1, 17)},
                                  {"nozzle_valve_positions", pairs()},
                                  {"circuit_process", Value(13)},
                                  {"status_type_masks", arrayOf(2, 1)},
                                  {"status_type_mask", Value(7)},
                                  {"stall_levels", arrayOf(arrayOf(17, 3))}}));
    EXPECT_EQ(answer.positionsID(), (QList<int>{1, 17}));
    EXPECT_EQ(answer.nozzleValvePositions(), (Pairs{{1, 3}, {17, 1}}));
    EXPECT_EQ(answer.circuitProcess(), process(13));
    EXPECT_EQ(answer.statusTypeMasks(), (QList<int>{2, 1}));
    EXPECT_EQ(answer.stallLevelsPos(), (Pairs{{17, 3}}));
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()["status_type_mask"]), "2") << "the first of the masks";
}

TEST(GetActiveCircuitsXmlRpc, comesBack)
{
    for (int number : {1, 11, 13}) {
        const Answer answer(three, process(number));
        EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer) << number;
    }
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
    EXPECT_EQ(Answer(Answer(process(3), {4, 2}).toXmlRpcValue()), Answer(process(3), {4, 2}));
}

TEST(GetActiveCircuitsXmlRpc, needsTheProcessAlone)
{
    EXPECT_EQ(Answer(structOf({{"circuit_process", Value(7)}})), Answer(process(7), {}));
    for (const Value &value :
         {Value(0), arrayOf(7), Value("text"), structOf({}), structOf({{"positions_id", arrayOf(1)}}),
          structOf({{"circuit_process", Value("7")}}), structOf({{"circuit_process", Value(7.0)}}),
          structOf({{"circuit_process", Value(true)}})})
        expectRefusal("DE02451", failed, ofValue, [&] { const Answer answer(value); });
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });
}

TEST(GetActiveCircuitsXmlRpc, refusesValvesAndMasksOfAnotherType)
{
    const auto with = [](const char *key, const Value &member) {
        return structOf({{"circuit_process", Value(7)}, {key, member}});
    };
    for (const Value &bad : {Value(1), Value("text"), structOf({}), arrayOf(1), arrayOf(arrayOf(1)),
                             arrayOf(arrayOf(1, 2, 3)), arrayOf(arrayOf(1, 2), arrayOf(1, "2"))}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE02565", failed, ofValue,
                      [&] { const Answer answer(with("nozzle_valve_positions", bad)); });
        EXPECT_EQ(Answer(with("stall_levels", bad)), Answer(process(7), {})) << "passed over";
    }
    for (const Value &bad : {Value(1), Value("text"), structOf({}), arrayOf("1"), arrayOf(1, true)}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE02939", failed, ofValue,
                      [&] { const Answer answer(with("status_type_masks", bad)); });
        EXPECT_EQ(Answer(with("positions_id", bad)), Answer(process(7), {})) << "passed over";
    }
}

TEST(GetActiveCircuitsXmlRpc, tellsTheFirstMemberThatIsWrong)
{
    Value value = structOf({{"nozzle_valve_positions", Value(1)}, {"status_type_masks", Value(1)}});
    const auto expectCode = [&](const char *code) {
        expectRefusal(code, failed, ofValue, [&] { const Answer answer(value); });
    };
    expectCode("DE02565");
    value["nozzle_valve_positions"] = pairs();
    expectCode("DE02451");
    value["circuit_process"] = 13;
    expectCode("DE02939");
}

// ---------------------------------------------------------------- masks

TEST(GetActiveCircuitsAnswer, tellsAMaskInWords)
{
    EXPECT_EQ(Answer::statusTypeMaskStr(0), "");
    EXPECT_EQ(Answer::statusTypeMaskStr(1), "Logical state");
    EXPECT_EQ(Answer::statusTypeMaskStr(2), "Pysical state");
    EXPECT_EQ(Answer::statusTypeMaskStr(3), "Pysical state");
    EXPECT_EQ(Answer::statusTypeMaskStr(4), "");
    EXPECT_EQ(Answer::statusTypeMaskStr(5), "Logical state");
    EXPECT_EQ(Answer(three, process(1)).statusTypeMasksStr(), "Pysical state,Logical state,Pysical state");
    EXPECT_EQ(Answer(QStringList{"6", "2", "2", "1", "4", "2", "1"}, process(1)).statusTypeMasksStr(),
              ",Logical state");
    EXPECT_EQ(Answer().statusTypeMasksStr(), "");
}

TEST(GetActiveCircuitsAnswer, findsPositionsByAllBitsOfAMask)
{
    const auto mask = [](int bits) { return static_cast<CircuitProcessStatusMask>(bits); };
    const Answer answer(three, process(1)); // 1: both, 17: logical, 2: physical
    EXPECT_EQ(answer.getPositionsIDForStatusMask(CircuitProcessStatusMask::Logical), (QList<int>{1, 17}));
    EXPECT_EQ(answer.getPositionsIDForStatusMask(CircuitProcessStatusMask::Physical), (QList<int>{1, 2}));
    EXPECT_EQ(answer.getPositionsIDForStatusMask(mask(3)), QList<int>{1});
    EXPECT_EQ(answer.getPositionsIDForStatusMask(mask(4)), QList<int>());
    EXPECT_EQ(answer.getPositionsIDForStatusMask(mask(0)), (QList<int>{1, 17, 2}));
    for (int number : {11, 13})
        EXPECT_EQ(Answer(three, process(number)).getPositionsIDForStatusMask(mask(0)), QList<int>())
            << "no masks of these";
    EXPECT_EQ(Answer(structOf({{"circuit_process", Value(1)},
                               {"positions_id", arrayOf(1)},
                               {"status_type_masks", arrayOf(1, 1)}}))
                  .getPositionsIDForStatusMask(mask(1)),
              QList<int>());
}

// ---------------------------------------------------------------- equality

TEST(GetActiveCircuitsAnswer, comparesEachField)
{
    const auto with = [](const char *key, const Value &member) {
        Value value = structOf({{"positions_id", arrayOf(1)},
                                {"nozzle_valve_positions", arrayOf(arrayOf(1, 3))},
                                {"circuit_process", Value(13)},
                                {"status_type_masks", arrayOf(2)},
                                {"stall_levels", arrayOf(arrayOf(1, 2))}});
        value[key] = member;
        return Answer(value);
    };
    const Answer answer = with("circuit_process", Value(13));
    const Answer same = answer;
    EXPECT_TRUE(answer == same);
    EXPECT_TRUE(answer.equalTo(&same));
    for (const Answer &other :
         {with("positions_id", arrayOf(2)), with("nozzle_valve_positions", arrayOf(arrayOf(1, 4))),
          with("nozzle_valve_positions", arrayOf(arrayOf(2, 3))), with("circuit_process", Value(12)),
          with("status_type_masks", arrayOf(3)), with("stall_levels", arrayOf(arrayOf(1, 3)))}) {
        EXPECT_TRUE(answer != other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "GetActiveCircuitsAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
}

} // namespace
