// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatusanswerslist.h"

#include "base/outofmemory.h"
#include "status/statustesting.h"

namespace {

using namespace testing_status;

using Answers = DispenserStatusAnswersList;
using Entries = QList<QPair<int, DispenserStatusAnswer>>;

constexpr char ofValue[] =
    "DispenserStatusAnswersList::DispenserStatusAnswersList(const XmlRpc::XmlRpcValue&)";

/** An idle circuit's status with some flags set. */
DispenserStatusAnswer statusWith(const std::vector<std::string> &flags)
{
    DispenserStatusAnswer status(idleStruct());
    for (const std::string &flag : flags)
        flagNamed(status, flag) = true;
    return status;
}

Answers working()
{
    return Answers(Entries{{3, statusWith({"tinting", "stirring"})},
                           {1, statusWith({"recirculating"})},
                           {17, statusWith({"stirring"})},
                           {2, statusWith({"tinting"})}});
}

Value element(const Value &positionID, const Value &status)
{
    return structOf({{"position_id", positionID}, {"status_answer", status}});
}

TEST(DispenserStatusAnswersList, keepsTheOrderOfArrival)
{
    EXPECT_TRUE(Answers().answers().isEmpty());
    Answers list;
    list.appendDispenserStatusAnswer(3, statusWith({"tinting"}));
    list.appendDispenserStatusAnswer(1, statusWith({}));
    ASSERT_EQ(list.answers().size(), 2);
    EXPECT_EQ(list.answers().at(0).first, 3);
    EXPECT_TRUE(list.answers().at(0).second.tinting);
    EXPECT_EQ(list.answers().at(1).first, 1);
    EXPECT_FALSE(list.answers().at(1).second.tinting);
    list.clear();
    EXPECT_TRUE(list.answers().isEmpty());
}

TEST(DispenserStatusAnswersList, copiesWhatItIsGiven)
{
    DispenserStatusAnswer status = statusWith({"tinting"});
    Answers list;
    list.appendDispenserStatusAnswer(3, status);
    status.tinting = false;
    EXPECT_TRUE(list.answers().at(0).second.tinting);
    const Answers copy = list;
    list.clear();
    EXPECT_EQ(copy.answers().size(), 1);
}

TEST(DispenserStatusAnswersList, findsTheFirstOfAPosition)
{
    const Answers list(
        Entries{{3, statusWith({"tinting"})}, {1, statusWith({"cleaning"})}, {3, statusWith({"stirring"})}});
    ASSERT_EQ(list.answers().size(), 3) << "a position may come twice";
    DispenserStatusAnswer found;
    EXPECT_TRUE(list.getDispenserStatusAnswerByPositionID(3, found));
    EXPECT_EQ(found, statusWith({"tinting"}));
    EXPECT_TRUE(list.getDispenserStatusAnswerByPositionID(1, found));
    EXPECT_EQ(found, statusWith({"cleaning"}));
    EXPECT_FALSE(list.getDispenserStatusAnswerByPositionID(2, found));
    EXPECT_EQ(found, statusWith({"cleaning"})) << "left alone";
    EXPECT_FALSE(Answers().getDispenserStatusAnswerByPositionID(0, found));
}

TEST(DispenserStatusAnswersList, tellsWhichPositionsWork)
{
    EXPECT_EQ(working().getTintingPositions(), (QList<int>{3, 2}));
    EXPECT_EQ(working().getRecirculatingPositions(), QList<int>{1});
    EXPECT_EQ(working().getStirringPositions(), (QList<int>{3, 17}));
    EXPECT_EQ(Answers().getTintingPositions(), QList<int>());
    EXPECT_EQ(Answers().getRecirculatingPositions(), QList<int>());
    EXPECT_EQ(Answers().getStirringPositions(), QList<int>());
}

TEST(DispenserStatusAnswersList, comparesPositionsAndStatusesInTheirOrder)
{
    EXPECT_TRUE(working() == working());
    EXPECT_FALSE(working() != working());
    const Entries entries = {{3, statusWith({"tinting"})}, {1, statusWith({})}};
    const Answers list(entries);
    for (const Entries &other : {Entries{entries[1], entries[0]}, Entries{entries[0]}, Entries(),
                                 Entries{{3, statusWith({"tinting", "cleaning"})}, entries[1]},
                                 Entries{entries[0], {2, statusWith({})}}}) {
        EXPECT_TRUE(list != Answers(other));
        EXPECT_FALSE(list == Answers(other));
    }
    EXPECT_TRUE(list == Answers(Entries{{3, statusWith({"tinting", "pumping"})}, entries[1]}))
        << "pumping comes and goes";
}

TEST(DispenserStatusAnswersListXmlRpc, isAnArrayOfStructs)
{
    Value status = idleStruct();
    status["tinting"] = true;
    const Answers list(arrayOf(element(Value(17), status), element(Value(-2), idleStruct())));
    ASSERT_EQ(list.answers().size(), 2);
    EXPECT_EQ(list.answers().at(0).first, 17);
    EXPECT_EQ(list.answers().at(0).second, statusWith({"tinting"}));
    EXPECT_EQ(list.answers().at(1).first, -2);

    const Value value = list.toXmlRpcValue();
    ASSERT_EQ(value.size(), 2);
    ASSERT_EQ(value[0].size(), 2);
    EXPECT_EQ(dumped(value[0]["position_id"]), "17");
    EXPECT_EQ(dumped(value[0]["status_answer"]), dumped(asWritten(status)));
    EXPECT_EQ(dumped(value[1]["position_id"]), "-2");
    EXPECT_EQ(Answers(value), list);
    EXPECT_EQ(Answers(working().toXmlRpcValue()), working());
    EXPECT_EQ(dumped(Answers().toXmlRpcValue()), "[]");
}

TEST(DispenserStatusAnswersListXmlRpc, isRefusedWhenItIsNoArrayOrEmpty)
{
    for (const Value &value :
         {Value(), Value(0), Value("text"), structOf({}), element(Value(1), idleStruct())})
        expectRefusal("DE01165", "DispenserStatusAnswersList: expected xml-rpc array type", ofValue,
                      [&] { const Answers list(value); });
    expectRefusal("DE01169", "DispenserStatusAnswersList: no data found", ofValue,
                  [] { const Answers list(arrayOf()); });
}

TEST(DispenserStatusAnswersListXmlRpc, isRefusedForOneBadElement)
{
    constexpr char noPosition[] = "DispenserStatusAnswersList: expected position ID value";
    const Value good = element(Value(1), idleStruct());
    for (const Value &bad : {Value(0), Value("text"), arrayOf(1), structOf({}),
                             structOf({{"status_answer", idleStruct()}}), element(Value("1"), idleStruct()),
                             element(Value(true), idleStruct()), element(Value(1.0), Value(0))}) {
        SCOPED_TRACE(dumped(bad));
        expectRefusal("DE01166", noPosition, ofValue, [&] { const Answers list(arrayOf(bad)); });
        expectRefusal("DE01166", noPosition, ofValue, [&] { const Answers list(arrayOf(good, bad)); });
    }
    // users know it by the position's text
    expectRefusal("DE01167", noPosition, ofValue, [&] {
        const Answers list(arrayOf(good, structOf({{"position_id", Value(2)}})));
    });
}

TEST(DispenserStatusAnswersListXmlRpc, passesOnWhatAStatusRefuses)
{
    expectRefusal("DE00443", "MachineStatusAnswer: expected disp_status value",
                  "MachineStatusAnswer::MachineStatusAnswer(const XmlRpc::XmlRpcValue&)",
                  [] { const Answers list(arrayOf(element(Value(1), Value(0)))); });
    expectRefusal("DE00026", "DispenserStatusAnswer: expected punching value",
                  "DispenserStatusAnswer::DispenserStatusAnswer(const XmlRpc::XmlRpcValue&)",
                  [] { const Answers list(arrayOf(element(Value(1), without(idleStruct(), "punching")))); });
}

TEST(DispenserStatusAnswersListXmlRpc, isRefusedInItsOwnWordsWhenThereIsNoMemoryForAStatus)
{
    const Value value = arrayOf(element(Value(3), idleStruct()), element(Value(1), idleStruct()));
    EXPECT_EQ(Answers(value).answers().size(), 2);
    expectRefusal("DE01168", "DispenserStatusAnswersList: invalid DispenserStatusAnswer parameter", ofValue,
                  [&] { outOfMemoryOnce([&] { return Answers(value); }); });
}

} // namespace
