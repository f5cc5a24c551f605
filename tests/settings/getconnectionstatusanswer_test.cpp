// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getconnectionstatusanswer.h"

#include "settings/structs.h"

#include <memory>

namespace {

using namespace testing_base;
using Answer = GetConnectionStatusAnswer;

constexpr char invalid[] = "GetConnectionStatusAnswer decoding failed: invalid QVariant value";

ConnectionStatus status(int number)
{
    return static_cast<ConnectionStatus>(number);
}

Answer whole()
{
    return {status(1), status(2), status(-7)};
}

TEST(GetConnectionStatusAnswer, knowsNoConnectionAtFirst)
{
    EXPECT_EQ(Answer().serialConnectionStatus(), status(0));
    EXPECT_EQ(Answer().btConnectionStatus(), status(-1));
    EXPECT_EQ(Answer().scaleConnectionStatus(), status(-1));
    EXPECT_EQ(Answer::defaultScaleConnectionStatus(), status(-1));
    EXPECT_EQ(Answer(status(1), status(0)).scaleConnectionStatus(), status(-1));
    EXPECT_EQ(Answer().protoType(), 2);
    EXPECT_EQ(
        dumped(Answer().toXmlRpcValue()),
        R"({"BT_connection_status": -1, "scale_connection_status": -1, "serial_connection_status": 0})");
}

TEST(GetConnectionStatusAnswer, travels)
{
    EXPECT_EQ(whole().serialConnectionStatus(), status(1));
    EXPECT_EQ(whole().btConnectionStatus(), status(2));
    EXPECT_EQ(whole().scaleConnectionStatus(), status(-7));
    EXPECT_EQ(dumped(whole().toXmlRpcValue()),
              R"({"BT_connection_status": 2, "scale_connection_status": -7, "serial_connection_status": 1})");
    EXPECT_EQ(Answer(whole().toXmlRpcValue()), whole());
    List list = {1, 2, -7};
    EXPECT_EQ(Answer(list), whole());
}

TEST(GetConnectionStatusAnswer, refusesWhatLacksAStatus)
{
    constexpr char ofList[] = "GetConnectionStatusAnswer::GetConnectionStatusAnswer(QList<QVariant>&)";
    constexpr char ofValue[] =
        "GetConnectionStatusAnswer::GetConnectionStatusAnswer(const XmlRpc::XmlRpcValue&)";
    const std::pair<const char *, const char *> members[] = {{"serial_connection_status", "DE01670"},
                                                             {"BT_connection_status", "DE01671"},
                                                             {"scale_connection_status", "DE01672"}};
    for (int i = 0; i < 3; ++i) {
        const auto &[key, code] = members[i];
        SCOPED_TRACE(key);
        List cut = List{1, 2, -7}.mid(0, i);
        expectRefusal(code, invalid, ofList, [&] { Answer{cut}; });
        List other = {1, 2, -7};
        other[i] = "1";
        expectRefusal(code, invalid, ofList, [&] { Answer{other}; });
        Value value = whole().toXmlRpcValue();
        value[key] = true;
        expectRefusal(code, invalid, ofValue, [&] { Answer{value}; });
        const Value missing = testing_settings::without(whole().toXmlRpcValue(), key);
        expectRefusal(code, invalid, ofValue, [&] { Answer{missing}; });
    }
    expectRefusal("DE01670", invalid, ofValue, [] { Answer{Value(0)}; });
}

TEST(GetConnectionStatusAnswer, clonesAndCompares)
{
    const std::unique_ptr<ProtoAnswer> copy(whole().clone());
    EXPECT_EQ(className(copy.get()), "GetConnectionStatusAnswer");
    EXPECT_TRUE(whole().equalTo(copy.get()));
    const Answer others[] = {{status(0), status(2), status(-7)},
                             {status(1), status(0), status(-7)},
                             {status(1), status(2), status(0)}};
    for (const Answer &other : others) {
        EXPECT_TRUE(whole() != other);
        EXPECT_FALSE(whole() == other);
        EXPECT_FALSE(whole().equalTo(&other));
    }
    const ConfProtoAnswer plain;
    EXPECT_FALSE(whole().equalTo(&plain));
    EXPECT_FALSE(whole().equalTo(nullptr));
}

} // namespace
