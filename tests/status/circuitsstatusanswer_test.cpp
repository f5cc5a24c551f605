// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/circuitsstatusanswer.h"

#include "base/outofmemory.h"
#include "status/dispenserstatuscmd.h"
#include "status/statustesting.h"

#include <QuvFramework/fw_exception.h>

#include <memory>

namespace {

using namespace testing_status;

using Answer = CircuitsStatusAnswer;
using Entries = QList<QPair<int, DispenserStatusAnswer>>;

constexpr char ofValue[] = "CircuitsStatusAnswer::CircuitsStatusAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofListValue[] =
    "DispenserStatusAnswersList::DispenserStatusAnswersList(const XmlRpc::XmlRpcValue&)";

DispenserStatusAnswer tinting()
{
    DispenserStatusAnswer status(idleStruct());
    status.tinting = true;
    return status;
}

Entries entries()
{
    return {{3, tinting()}, {1, DispenserStatusAnswer(idleStruct())}};
}

Value structWith(const Value &list)
{
    return structOf({{"circuits_status_answers", list}});
}

TEST(CircuitsStatusAnswer, holdsAListOfStatuses)
{
    EXPECT_TRUE(Answer().answers().answers().isEmpty());
    EXPECT_EQ(Answer().protoType(), 1);
    const Answer ofEntries(entries());
    const Answer ofList{DispenserStatusAnswersList(entries())};
    EXPECT_EQ(ofEntries.answers().answers(), entries());
    EXPECT_EQ(ofList, ofEntries);
    EXPECT_EQ(ofList.protoType(), 1);
    Answer cleared = ofList;
    cleared.clear();
    EXPECT_EQ(cleared, Answer());
}

TEST(CircuitsStatusAnswer, readsNothingOfAList)
{
    List list = {1, QVariant::fromValue(DispenserStatusAnswersList(entries()))};
    EXPECT_EQ(Answer(list), Answer());
    EXPECT_EQ(Answer(list).protoType(), 1);
}

TEST(CircuitsStatusAnswer, appendsTheAnswerToACommand)
{
    DispenserStatusCmd command(17);
    DispenserStatusAnswer status = tinting();
    Answer answer(entries());
    FW_DriverError error;
    EXPECT_TRUE(answer.appendDispenserStatusAnswer(&status, &command, &error));
    EXPECT_TRUE(answer.appendDispenserStatusAnswer(&status, &command, nullptr));
    expectError(error, "", "");
    status.tinting = false;
    ASSERT_EQ(answer.answers().answers().size(), 4);
    EXPECT_EQ(answer.answers().answers().at(2).first, 17);
    EXPECT_EQ(answer.answers().answers().at(2).second, tinting());
    EXPECT_EQ(answer.answers().answers().at(3).first, 17);
}

TEST(CircuitsStatusAnswer, needsBothTheAnswerAndTheCommand)
{
    DispenserStatusCmd command(17);
    DispenserStatusAnswer status = tinting();
    Answer answer(entries());
    FW_DriverError error;
    EXPECT_FALSE(answer.appendDispenserStatusAnswer(nullptr, &command, &error));
    expectError(error, "DE01174", "Invalid status objects");
    error = FW_DriverError();
    EXPECT_FALSE(answer.appendDispenserStatusAnswer(&status, nullptr, &error));
    expectError(error, "DE01174", "Invalid status objects");
    EXPECT_FALSE(answer.appendDispenserStatusAnswer(nullptr, nullptr, nullptr));
    EXPECT_EQ(answer, Answer(entries()));
}

TEST(CircuitsStatusAnswer, isAStructOfOneArray)
{
    Value status = idleStruct();
    status["tinting"] = true;
    const Answer answer(
        structWith(arrayOf(structOf({{"position_id", Value(3)}, {"status_answer", status}}),
                           structOf({{"position_id", Value(1)}, {"status_answer", idleStruct()}}))));
    EXPECT_EQ(answer, Answer(entries()));
    EXPECT_EQ(answer.protoType(), 1);
    const Value value = answer.toXmlRpcValue();
    ASSERT_EQ(value.size(), 1);
    ASSERT_EQ(value["circuits_status_answers"].size(), 2);
    EXPECT_EQ(dumped(value["circuits_status_answers"][0]["position_id"]), "3");
    EXPECT_EQ(dumped(value["circuits_status_answers"][0]["status_answer"]), dumped(asWritten(status)));
    EXPECT_EQ(Answer(value), answer);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"circuits_status_answers": []})");
}

TEST(CircuitsStatusAnswer, isRefusedWithoutItsList)
{
    for (const Value &value :
         {Value(0), arrayOf(1), Value("text"), structOf({}), structOf({{"other", Value(1)}})})
        expectRefusal("DE01173", "CircuitsStatusAnswer: invalid DispenserStatusAnswersList parameter",
                      ofValue, [&] { const Answer answer(value); });
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });
}

TEST(CircuitsStatusAnswer, passesOnWhatItsListRefuses)
{
    for (const Value &list : {Value(0), Value("text"), structOf({})})
        expectRefusal("DE01165", "DispenserStatusAnswersList: expected xml-rpc array type", ofListValue,
                      [&] { const Answer answer(structWith(list)); });
    expectRefusal("DE01169", "DispenserStatusAnswersList: no data found", ofListValue,
                  [] { const Answer answer(structWith(arrayOf())); });
    expectRefusal("DE01166", "DispenserStatusAnswersList: expected position ID value", ofListValue,
                  [] { const Answer answer(structWith(arrayOf(Value(3)))); });
}

TEST(CircuitsStatusAnswer, isRefusedInItsListsWordsWhenThereIsNoMemory)
{
    // DE01172 stands for what its list has no words for: the contract, since the list has some for all of its allocations
    const Value value = Answer(entries()).toXmlRpcValue();
    EXPECT_EQ(Answer(value), Answer(entries()));
    expectRefusal("DE01168", "DispenserStatusAnswersList: invalid DispenserStatusAnswer parameter",
                  ofListValue, [&] { outOfMemoryOnce([&] { return Answer(value); }); });
}

TEST(CircuitsStatusAnswer, comparesItsStatuses)
{
    const Answer answer(entries());
    const Answer same = answer;
    const Answer other(Entries{entries()[1], entries()[0]});
    const SerialProtoAnswer plain;
    EXPECT_TRUE(answer == same);
    EXPECT_TRUE(answer != other);
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "CircuitsStatusAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
}

} // namespace
