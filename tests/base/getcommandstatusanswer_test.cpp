// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcommandstatusanswer.h"

#include "base/basetesting.h"

#include <memory>

using namespace testing_base;

namespace {

constexpr char fromListFunction[] = "GetCommandStatusAnswer::GetCommandStatusAnswer(QList<QVariant>&)";

CmdStatus filling()
{
    return CmdStatus(1, 2500, 40, "Filling");
}

} // namespace

TEST(GetCommandStatusAnswer, holdsAStatus)
{
    EXPECT_EQ(GetCommandStatusAnswer().cmdStatus(), CmdStatus());
    EXPECT_EQ(GetCommandStatusAnswer().protoType(), 2);
    EXPECT_EQ(GetCommandStatusAnswer(filling()).cmdStatus(), filling());
    EXPECT_EQ(GetCommandStatusAnswer(filling()).protoType(), 2);
    List list = {QVariant::fromValue(filling()), "more"};
    EXPECT_EQ(GetCommandStatusAnswer(list).cmdStatus(), filling());
    EXPECT_EQ(list.size(), 2);
}

TEST(GetCommandStatusAnswer, travelsInTheFormOfTheStatus)
{
    const Value value = GetCommandStatusAnswer(filling()).toXmlRpcValue();
    EXPECT_EQ(dumped(value),
              R"({"cmd_answer": 0, "extra_info": "", "info": "Filling", "percentage": 40, "status": 1, )"
              R"("time_left": 2500})");
    EXPECT_EQ(GetCommandStatusAnswer(value).cmdStatus(), filling());
    EXPECT_EQ(GetCommandStatusAnswer(value).protoType(), 2);
}

TEST(GetCommandStatusAnswer, refusesWhatIsNoStatus)
{
    for (const Value &value : {Value(), Value(1), Value("1"), arrayOf(1)}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE00374", "GetCommandStatusAnswer decoding failed: invalid xml-rpc value",
                      "GetCommandStatusAnswer::GetCommandStatusAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { GetCommandStatusAnswer{value}; });
    }
    expectRefusal("DE00387", "CmdStatus: expected info value",
                  "CmdStatus::CmdStatus(const XmlRpc::XmlRpcValue&)", [] {
                      GetCommandStatusAnswer{structOf({{"status", 1}})};
                  });
}

TEST(GetCommandStatusAnswer, refusesAListWithoutAStatus)
{
    for (List list :
         {List(), List{1}, List{"1"}, List{QVariant()}, List{1, QVariant::fromValue(filling())}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE00375", "GetCommandStatusAnswer decoding failed: invalid QVariant value",
                      fromListFunction, [&] { GetCommandStatusAnswer{list}; });
    }
}

TEST(GetCommandStatusAnswer, takesAStatusOutOfAVariant)
{
    GetCommandStatusAnswer answer;
    answer.setCmdStatus(QVariant::fromValue(filling()));
    EXPECT_EQ(answer.cmdStatus(), filling());
    for (const QVariant &other : {QVariant(), QVariant(0), QVariant("Filling")})
        answer.setCmdStatus(other);
    EXPECT_EQ(answer.cmdStatus(), filling());
}

TEST(GetCommandStatusAnswer, holdsACopyWhileTheTicketGoesOn)
{
    CmdStatus ticket = filling();
    GetCommandStatusAnswer answer(ticket);
    ticket.setStatus(0);
    EXPECT_EQ(answer.cmdStatus(), filling());
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    answer.setCmdStatus(QVariant::fromValue(ticket));
    ASSERT_EQ(className(copy.get()), "GetCommandStatusAnswer");
    EXPECT_EQ(dynamic_cast<const GetCommandStatusAnswer &>(*copy).cmdStatus(), filling());
}

TEST(GetCommandStatusAnswer, comparesStatus)
{
    const GetCommandStatusAnswer answer(filling());
    const GetCommandStatusAnswer same(filling());
    const GetCommandStatusAnswer other(CmdStatus(1, 2500, 41, "Filling"));
    const ConfProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}
