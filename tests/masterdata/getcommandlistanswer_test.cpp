// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getcommandlistanswer.h"

#include "base/basetesting.h"
#include "base/outofmemory.h"

#include <memory>

namespace {

using namespace testing_base;
using Answer = GetCommandListAnswer;

constexpr char ofValue[] = "GetCommandListAnswer::GetCommandListAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "GetCommandListAnswer::GetCommandListAnswer(QList<QVariant>&)";
constexpr char noCommand[] = "GetCommandListAnswer: errors during ProtocolCommandInfo creation";

ProtocolCommandInfo info(int id, const char *name)
{
    ProtocolCommandInfo info;
    info.id = id;
    info.name = QString::fromLatin1(name);
    info.version = 2;
    return info;
}

const QList<ProtocolCommandInfo> twoCommands = {info(8, "TINT"), info(6, "RESET")};

constexpr char written[] =
    R"({"command_list": [{"code": "", "driver_cmd": false, "enabled": true, "id": 8, )"
    R"("max_params": 0, "min_params": 0, "name": "TINT", "time_tracking": false, "version": 2}, )"
    R"({"code": "", "driver_cmd": false, "enabled": true, "id": 6, )"
    R"("max_params": 0, "min_params": 0, "name": "RESET", "time_tracking": false, "version": 2}]})";

TEST(GetCommandListAnswer, travelsAsAStruct)
{
    EXPECT_STREQ(Answer::commandList_TAG, "command_list");
    const Answer answer(twoCommands);
    EXPECT_EQ(answer.protoType(), 2);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), written);
    EXPECT_EQ(Answer(answer.toXmlRpcValue()).commandList(), twoCommands);
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"command_list": []})");
    EXPECT_EQ(Answer(Answer().toXmlRpcValue()), Answer());
}

TEST(GetCommandListAnswer, refusesAValueWithoutCommands)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)", [] { Answer{Value()}; });
    for (const Value &value : {Value(5), arrayOf(), structOf({}), structOf({{"command_list", 7}}),
                               structOf({{"command_list", structOf({})}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00433", "GetCommandListAnswer: Errors during ProtocolCommandInfo list creation",
                      ofValue, [&] { Answer{value}; });
    }
    expectRefusal("DE00423", "ProtocolCommandInfo: expected id value",
                  "ProtocolCommandInfo::ProtocolCommandInfo(const XmlRpc::XmlRpcValue&)", [] {
                      Answer{structOf({{"command_list", arrayOf(twoCommands[0].toXmlRpcValue(), 5)}})};
                  });
    const Value whole = Answer(twoCommands).toXmlRpcValue();
    expectRefusal("DE00432", noCommand, ofValue, [&] { outOfMemoryOnce([&] { Answer{whole}; }); });
}

TEST(GetCommandListAnswer, readsAListOfCommands)
{
    List list = {QVariant::fromValue(twoCommands[0]), QVariant::fromValue(twoCommands[1]).toMap()};
    EXPECT_EQ(Answer(list).commandList(), twoCommands);
    List none;
    EXPECT_EQ(Answer(none), Answer());
}

TEST(GetCommandListAnswer, refusesAListOfOtherThings)
{
    const QVariant good = QVariant::fromValue(twoCommands[0]);
    const auto expectRefused = [&](const QVariant &bad, const char *code, const char *text) {
        SCOPED_TRACE(shown({bad}));
        for (List list : {List{bad}, List{good, bad}, List{bad, bad}})
            expectRefusal(code, text, ofList, [&] { Answer{list}; });
    };
    expectRefused(QVariant(), "DE00430", "GetCommandListAnswer decoding failed: invalid QVariant value");
    for (const QVariant &bad : {QVariant(7), QVariant("TINT"), QVariant(List{good}), QVariant(QVariantMap()),
                                QVariant(QVariantMap{{"name", "TINT"}})})
        expectRefused(bad, "DE00429", noCommand);
    List list = {QVariantMap{{"id", 8}}};
    expectRefusal("DE00424", "ProtocolCommandInfo: expected name value",
                  "ProtocolCommandInfo::ProtocolCommandInfo(const XmlRpc::XmlRpcValue&)",
                  [&] { Answer{list}; });
}

TEST(GetCommandListAnswer, clonesAndCompares)
{
    const Answer answer(twoCommands);
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetCommandListAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const QList<ProtocolCommandInfo> &commands :
         {QList<ProtocolCommandInfo>(), twoCommands.mid(0, 1),
          QList<ProtocolCommandInfo>{twoCommands[1], twoCommands[0]}}) {
        const Answer other(commands);
        EXPECT_FALSE(answer.equalTo(&other));
        EXPECT_TRUE(answer != other);
    }
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
