// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilereadanswer.h"

#include "base/factlines.h"
#include "firmware/resourcetesting.h"

#include <memory>

namespace {

using namespace testing_firmware;

using Answer = ResourceFileReadAnswer;

constexpr char ofValue[] = "ResourceFileReadAnswer::ResourceFileReadAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "ResourceFileReadAnswer::ResourceFileReadAnswer(QList<QVariant>&)";
constexpr char badAnswer[] = "ResourceFileWriteCmd: invalid FwResourceFile parameter"; // the write command's

FwResourceFile dump()
{
    return {twoBytes(), "P17.dmp", FwResourceFile::DumpFile, 3};
}

TEST(ResourceFileReadAnswer, holdsAFile)
{
    const Answer answer(dump());
    EXPECT_EQ(answer.resourceFile(), dump());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(
        dumped(answer.toXmlRpcValue()),
        R"({"res_file": {"res_data_stream": <00a5>, "res_index": 3, "res_name": "P17.dmp", "res_type": 3}})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
    for (const QVariant &item :
         {QVariant::fromValue(dump()), QVariant(fileMap(twoBytes(), "P17.dmp", 3, 3))}) {
        List list = {item, "rest"};
        EXPECT_EQ(Answer(list), answer);
        EXPECT_EQ(Answer(list).protoType(), 1);
    }
    EXPECT_EQ(Answer().resourceFile(), FwResourceFile());
}

// DE02755 of a value is the contract: a file has words of its own for all that fails in it.

TEST(ResourceFileReadAnswer, isRefusedWithoutAFile)
{
    for (const Value &none : {Value(7), Value("x"), arrayOf(), structOf({}), fileStruct("x", "n", 1, 0)}) {
        SCOPED_TRACE(dumped(none));
        expectRefusal("DE02754", badAnswer, ofValue, [&] { const Answer answer(none); });
    }
    for (const Value &bad : {Value(7), Value("x"), arrayOf(), structOf({})})
        expectRefusal("DE02719", badFile, ofFile, [&] {
            const Answer answer(structOf({{"res_file", bad}}));
        });
    expectRefusal("DE02782", badFile, ofFile, [] {
        const Answer answer(structOf({{"res_file", fileStruct("x", "n", 1, "0")}}));
    });
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });

    List empty;
    expectRefusal("DE02754", badAnswer, ofList, [&] { const Answer answer(empty); });
    for (const QVariant &other :
         {QVariant(), QVariant(7), QVariant("x"), QVariant(QVariantMap{{"res_name", "n"}})}) {
        SCOPED_TRACE(shown({other}));
        List list = {other};
        expectRefusal("DE02755", badAnswer, ofList, [&] { const Answer answer(list); });
    }
    List bad = {fileMap("x", "n", "1", 0)};
    expectRefusal("DE02721", badFile, ofFile, [&] { const Answer answer(bad); });
}

TEST(ResourceFileReadAnswer, comparesItsFile)
{
    const Answer answer(dump());
    const Answer same = answer;
    const Answer other(FwResourceFile(twoBytes(), "P17.dmp", FwResourceFile::DumpFile, 4));
    const SerialProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_NE(answer, other);
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "ResourceFileReadAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
}

TEST(ResourceFileReadAnswer, isExplained)
{
    EXPECT_EQ(
        membersOf("RES_FILE_READ"),
        (Lines{"ResourceFileReadAnswer",
               "res_file (struct): res_data_stream (base64), res_name, res_type and res_index",
               "  XML-RPC, missing: DE02754", "  XML-RPC, cannot be made: DE02755",
               "  XML-RPC, without bytes as res_data_stream: DE02719",
               "  XML-RPC, without a string as res_name: DE02720",
               "  XML-RPC, without an int as res_type: DE02721",
               "  XML-RPC, without an int as res_index: DE02782", "  list, missing or another type: DE02755",
               "  XML-RPC, : DE02765", "  list, : DE02765"}));
}

} // namespace
