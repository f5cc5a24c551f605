// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/gethostinfoanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;

constexpr char invalid[] = "GetHostInfoAnswer decoding failed: invalid QVariant value";
constexpr char noName[] = "GetHostInfoAnswer: expected host name value";
constexpr char noRadio[] = "GetHostInfoAnswer: expected bluetooth radio ON value";

TEST(GetHostInfoAnswer, tellsTheHost)
{
    EXPECT_EQ(GetHostInfoAnswer().hostName(), "");
    EXPECT_FALSE(GetHostInfoAnswer().btRadioOn());
    EXPECT_EQ(GetHostInfoAnswer().protoType(), 2);
    const GetHostInfoAnswer answer("shop-1", true);
    EXPECT_EQ(answer.hostName(), "shop-1");
    EXPECT_TRUE(answer.btRadioOn());
    List list = {"shop-1", true};
    EXPECT_EQ(GetHostInfoAnswer(list), answer);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"BT_radio_ON": true, "host_name": "shop-1"})");
    EXPECT_EQ(GetHostInfoAnswer(structOf({{"host_name", "shop-1"}, {"BT_radio_ON", true}})), answer);
}

TEST(GetHostInfoAnswer, refusesAListWithoutBoth)
{
    const std::pair<List, const char *> rows[] = {
        {{}, "DE01926"},         {{7, true}, "DE01926"},     {{7, 7}, "DE01926"},
        {{"shop-1"}, "DE01925"}, {{"shop-1", 1}, "DE01925"}, {{"shop-1", "true"}, "DE01925"}};
    for (const auto &[given, code] : rows) {
        List list = given;
        SCOPED_TRACE(shown(list));
        expectRefusal(code, invalid, "GetHostInfoAnswer::GetHostInfoAnswer(QList<QVariant>&)",
                      [&] { GetHostInfoAnswer{list}; });
    }
}

TEST(GetHostInfoAnswer, refusesAStructWithoutBoth)
{
    constexpr char function[] = "GetHostInfoAnswer::GetHostInfoAnswer(const XmlRpc::XmlRpcValue&)";
    for (const Value &value : {Value(5), arrayOf("shop-1"), structOf({}), structOf({{"BT_radio_ON", true}}),
                               structOf({{"host_name", 7}, {"BT_radio_ON", true}})})
        expectRefusal("DE01927", noName, function, [&] { GetHostInfoAnswer{value}; });
    for (const Value &value :
         {structOf({{"host_name", "shop-1"}}), structOf({{"host_name", "shop-1"}, {"BT_radio_ON", 1}})})
        expectRefusal("DE01928", noRadio, function, [&] { GetHostInfoAnswer{value}; });
}

TEST(GetHostInfoAnswer, clonesAndCompares)
{
    const GetHostInfoAnswer answer("shop-1", true);
    const std::unique_ptr<ProtoAnswer> copy(answer.clone());
    EXPECT_EQ(className(copy.get()), "GetHostInfoAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    EXPECT_TRUE(answer != GetHostInfoAnswer("shop-2", true));
    EXPECT_TRUE(answer != GetHostInfoAnswer("shop-1", false));
    const ConfProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
