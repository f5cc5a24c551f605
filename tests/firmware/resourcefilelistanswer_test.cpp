// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilelistanswer.h"

#include "base/factlines.h"
#include "base/outofmemory.h"
#include "firmware/resourcetesting.h"

#include <memory>

namespace {

using namespace testing_firmware;

using Answer = ResourceFileListAnswer;
using Files = QList<FwResourceFile>;

constexpr char ofValue[] = "ResourceFileListAnswer::ResourceFileListAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "ResourceFileListAnswer::ResourceFileListAnswer(QList<QVariant>&)";

FwResourceFile dump()
{
    return {twoBytes(), "P17.dmp", FwResourceFile::DumpFile, 3};
}

FwResourceFile messages()
{
    return {"ab", "m.txt", FwResourceFile::MessageFile, 1};
}

TEST(ResourceFileListAnswer, holdsFiles)
{
    const Answer answer(Files{dump(), messages()});
    EXPECT_EQ(answer.resourceFiles(), (Files{dump(), messages()}));
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(
        dumped(answer.toXmlRpcValue()),
        R"({"res_file_list": [{"res_data_stream": <00a5>, "res_index": 3, "res_name": "P17.dmp", "res_type": 3}, )"
        R"({"res_data_stream": <6162>, "res_index": 1, "res_name": "m.txt", "res_type": 2}]})");
    EXPECT_EQ(Answer(answer.toXmlRpcValue()), answer);
    for (const QVariant &item : {QVariant::fromValue(Files{dump(), messages()}),
                                 QVariant(List{QVariant::fromValue(dump()), fileMap("ab", "m.txt", 2, 1)})}) {
        List list = {item, "rest"};
        EXPECT_EQ(Answer(list), answer);
        EXPECT_EQ(Answer(list).protoType(), 1);
    }
}

TEST(ResourceFileListAnswer, isWrittenWithoutAFileAndNotReadBack)
{
    EXPECT_EQ(dumped(Answer().toXmlRpcValue()), R"({"res_file_list": []})");
    expectRefusal("DE02759", "ResourceFileListAnswer: no FwResourceFile found", ofValue,
                  [] { const Answer answer(Answer().toXmlRpcValue()); });
    List list = {QVariant::fromValue(Files())};
    EXPECT_EQ(Answer(list), Answer());
}

TEST(ResourceFileListAnswer, isRefusedWithoutFiles)
{
    const Value good = fileStruct("x", "n", 1, 0);
    for (const Value &none : {Value(7), Value("x"), arrayOf(good), structOf({}),
                              structOf({{"res_file_list", good}}), structOf({{"res_file_list", 7}})}) {
        SCOPED_TRACE(dumped(none));
        expectRefusal("DE03260", "ResourceFileListAnswer: expected res_file_list value", ofValue,
                      [&] { const Answer answer(none); });
    }
    for (const Value &bad : {Value(7), arrayOf(good), structOf({})})
        expectRefusal("DE02719", badFile, ofFile, [&] {
            const Answer answer(structOf({{"res_file_list", arrayOf(good, bad)}}));
        });
    const Value value = structOf({{"res_file_list", arrayOf(good)}});
    expectRefusal("DE02758", "ResourceFileListAnswer: invalid FwResourceFile parameter", ofValue,
                  [&] { outOfMemoryOnce([&] { const Answer answer(value); }); });
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });

    List empty;
    expectRefusal("DE02756", "Too few parameters received", ofList, [&] { const Answer answer(empty); });
    for (const QVariant &other :
         {QVariant(), QVariant(7), QVariant::fromValue(dump()), QVariant(fileMap("x", "n", 1, 0)),
          QVariant(List{7}), QVariant(List{fileMap("x", "n", 1, 0), QVariantMap{{"res_name", "n"}}})}) {
        SCOPED_TRACE(shown({other}));
        List list = {other};
        expectRefusal("DE02757", "ResourceFileWriteCmd: expected FwResourceFile type parameter", ofList,
                      [&] { const Answer answer(list); });
    }
    List bad = {QVariant(List{fileMap("x", 7, 1, 0)})};
    expectRefusal("DE02720", badFile, ofFile, [&] { const Answer answer(bad); });
}

TEST(ResourceFileListAnswer, comparesItsFilesInTheirOrder)
{
    const Answer answer(Files{dump(), messages()});
    const Answer same = answer;
    const SerialProtoAnswer plain;
    EXPECT_TRUE(answer.equalTo(&same));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    for (const Files &files : {Files(), Files{dump()}, Files{messages(), dump()}}) {
        const Answer other(files);
        EXPECT_NE(answer, other);
        EXPECT_FALSE(answer.equalTo(&other));
    }
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "ResourceFileListAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
}

TEST(ResourceFileListAnswer, isExplained)
{
    EXPECT_EQ(
        membersOf("RES_FILE_LIST"),
        (Lines{
            "ResourceFileListAnswer",
            "res_file_list (array of structs): of each file res_data_stream (base64), res_name, res_type and "
            "res_index",
            "  XML-RPC, missing or another type: DE03260",
            "  XML-RPC, an element without bytes as res_data_stream: DE02719",
            "  XML-RPC, an element without a string as res_name: DE02720",
            "  XML-RPC, an element without an int as res_type: DE02721",
            "  XML-RPC, an element without an int as res_index: DE02782",
            "  XML-RPC, an element that cannot be made: DE02758", "  list, missing or another type: DE02757",
            "  list, the list is empty: DE02756", "  XML-RPC, empty: DE02759", "  XML-RPC, : DE02771",
            "  list, : DE02772"}));
}

} // namespace
