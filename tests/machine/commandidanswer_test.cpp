// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machine/commandidanswer.h"

#include "base/basetesting.h"

#include <memory>

namespace {

using namespace testing_base;
using IDs = QList<unsigned int>;

constexpr char ofTokens[] = "CommandIDAnswer::CommandIDAnswer(QStringList)";
constexpr char noNumber[] = "Error during command answer decoding: expected number of identifier";
constexpr char badLength[] = "Error during command answer decoding: bad length for serial answer";
constexpr char badID[] = "Error during command answer decoding: conversion failed";

TEST(CommandIDAnswer, readsTheIdentifiers)
{
    EXPECT_EQ(CommandIDAnswer().commandIDs(), IDs());
    EXPECT_EQ(CommandIDAnswer().protoType(), 1);
    EXPECT_EQ(CommandIDAnswer({"1", "0"}).commandIDs(), IDs());
    EXPECT_EQ(CommandIDAnswer({"4", "3", "11", "F5", "100"}).commandIDs(), (IDs{17, 245, 256}));
    EXPECT_EQ(CommandIDAnswer({"2", "1", "FFFFFFFF"}).commandIDs(), IDs{4294967295U});
}

TEST(CommandIDAnswer, refusesTokensThatAreNone)
{
    const struct
    {
        QStringList tokens;
        const char *code;
        const char *text;
    } rows[] = {
        {{"0"}, "DE00071", noNumber},
        {{"1", "x"}, "DE00069", noNumber},
        {{"1", "1"}, "DE00124", badLength},
        {{"1", "7FFFFFFF"}, "DE00124", badLength},
        {{"3", "1", "11", "12"}, "DE00124", badLength},
        {{"2", "1", "11", "12"}, "DE00124", badLength}, // more than the length tells count as well
        {{"2", "0", "11"}, "DE00124", badLength},
        {{"3", "2", "x", "y"}, "DE00072", badID},
        {{"3", "2", "11", "y"}, "DE00072", badID},
        {{"2", "1", "100000000"}, "DE00072", badID},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.tokens.join(' ').toStdString());
        expectRefusal(row.code, row.text, ofTokens, [&] { CommandIDAnswer{row.tokens}; });
    }
    constexpr char serial[] = "SerialProtoAnswer::SerialProtoAnswer(QStringList)";
    expectRefusal("DE00076", "Empty answer received", serial, [] { CommandIDAnswer{QStringList()}; });
    for (const QStringList &cut : {QStringList{"3"}, QStringList{"3", "2"}, QStringList{"3", "2", "11"}})
        expectRefusal("DE00077", "Error during command answer decoding: bad length", serial,
                      [&] { CommandIDAnswer{cut}; });
}

TEST(CommandIDAnswer, travelsAsAStruct)
{
    EXPECT_STREQ(CommandIDAnswer::commandIDs_TAG, "command_ids");
    const CommandIDAnswer answer({"3", "2", "11", "FFFFFFFF"});
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"command_ids": [17, -1]})");
    EXPECT_EQ(CommandIDAnswer(answer.toXmlRpcValue()).commandIDs(), (IDs{17, 4294967295U}));
    EXPECT_EQ(CommandIDAnswer(CommandIDAnswer().toXmlRpcValue()), CommandIDAnswer());
    for (const Value &value : {Value(), Value(5), arrayOf(17), structOf({}), structOf({{"command_ids", 17}}),
                               structOf({{"command_ids", arrayOf(17, "x")}})}) {
        SCOPED_TRACE(dumped(value));
        expectRefusal("DE03280", "CommandIDAnswer: expected command_ids value",
                      "CommandIDAnswer::CommandIDAnswer(const XmlRpc::XmlRpcValue&)",
                      [&] { CommandIDAnswer{value}; });
    }
}

TEST(CommandIDAnswer, clonesAndCompares)
{
    const CommandIDAnswer answer({"3", "2", "11", "F5"});
    const std::unique_ptr<ProtoAnswer> copy(static_cast<const ProtoAnswer &>(answer).clone());
    EXPECT_EQ(className(copy.get()), "CommandIDAnswer");
    EXPECT_TRUE(answer.equalTo(copy.get()));
    for (const CommandIDAnswer &other :
         {CommandIDAnswer({"3", "2", "F5", "11"}), CommandIDAnswer({"2", "1", "11"})})
        EXPECT_FALSE(answer.equalTo(&other));
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
}

} // namespace
