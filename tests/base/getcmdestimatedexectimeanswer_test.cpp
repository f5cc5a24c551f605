// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcmdestimatedexectimeanswer.h"

#include "base/basetesting.h"

#include <memory>

using namespace testing_base;

TEST(GetCmdEstimatedExecTimeAnswer, holdsATime)
{
    EXPECT_STREQ(GetCmdEstimatedExecTimeAnswer::EXEC_TIME, "exec_time");
    EXPECT_EQ(GetCmdEstimatedExecTimeAnswer().executionTime(), 0);
    EXPECT_EQ(GetCmdEstimatedExecTimeAnswer().protoType(), 2);
    EXPECT_EQ(GetCmdEstimatedExecTimeAnswer(5000000000LL).executionTime(), 5000000000LL);
    EXPECT_EQ(GetCmdEstimatedExecTimeAnswer(structOf({{"exec_time", 2500}, {"more", 1}})).executionTime(),
              2500);
    List list = {2500, "more"};
    EXPECT_EQ(GetCmdEstimatedExecTimeAnswer(list).executionTime(), 2500);
    list = {5000000000LL};
    EXPECT_EQ(GetCmdEstimatedExecTimeAnswer(list).executionTime(), 5000000000LL);
    EXPECT_EQ(GetCmdEstimatedExecTimeAnswer(list).protoType(), 2);
}

TEST(GetCmdEstimatedExecTimeAnswer, writesTheTime)
{
    EXPECT_EQ(dumped(GetCmdEstimatedExecTimeAnswer(2500).toXmlRpcValue()), R"({"exec_time": 2500})");
    EXPECT_EQ(dumped(GetCmdEstimatedExecTimeAnswer().toXmlRpcValue()), R"({"exec_time": 0})");
    EXPECT_EQ(dumped(GetCmdEstimatedExecTimeAnswer(4294967296LL + 5).toXmlRpcValue()), R"({"exec_time": 5})");
}

TEST(GetCmdEstimatedExecTimeAnswer, refusesAValueWithoutATime)
{
    for (const Value &value : {Value(), Value(5), arrayOf(5), structOf({}), structOf({{"exec_time", "5"}}),
                               structOf({{"exec_time", 5.0}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE01180", "GetCmdEstimatedExecTimeAnswer: cannot find execution time tag",
                      "GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(const "
                      "XmlRpc::XmlRpcValue&)",
                      [&] { GetCmdEstimatedExecTimeAnswer{value}; });
    }
}

TEST(GetCmdEstimatedExecTimeAnswer, refusesAListWithoutATime)
{
    for (List list : {List(), List{"5"}, List{5.5}, List{QVariant()}, List{"5", 5}}) {
        SCOPED_TRACE(shown(list));
        expectRefusal("DE01178", "GetCmdEstimatedExecTimeAnswer decoding failed: invalid QVariant value",
                      "GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(QList<QVariant>&)",
                      [&] { GetCmdEstimatedExecTimeAnswer{list}; });
    }
}

TEST(GetCmdEstimatedExecTimeAnswer, clonesAndCompares)
{
    const GetCmdEstimatedExecTimeAnswer answer(2500);
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "GetCmdEstimatedExecTimeAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    const GetCmdEstimatedExecTimeAnswer other(2501);
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}
