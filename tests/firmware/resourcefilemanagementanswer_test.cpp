// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilemanagementanswer.h"

#include "base/factlines.h"
#include "firmware/resourcetesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_firmware;

using Answer = ResourceFileManagementAnswer;

FwResourceData block()
{
    return {RFM_Subcommand{2}, 243, 300, twoBytes()};
}

TEST(ResourceFileManagementAnswer, holdsABlock)
{
    const QStringList parameters = {"2", "F3", "38", "1", "2", "0", "0", "A", "5"};
    const Answer answer(QStringList("9") + parameters);
    EXPECT_EQ(answer.resourceData(), block());
    EXPECT_EQ(answer.protoType(), 1);
    EXPECT_EQ(answer.serialParameters(), (QList<int>{2, 243, 56, 1, 2, 0, 0, 10, 5}));
    EXPECT_EQ(static_cast<const SerialProtoAnswer &>(answer).serialParameters(), parameters);
    EXPECT_EQ(dumped(answer.toXmlRpcValue()), R"({"res_data": [2, 243, 300, 0]})");
    List list = {QVariant::fromValue(block())};
    for (const Answer &same :
         {Answer(block()), Answer(list), Answer(answer),
          Answer(structOf({{"res_data", blockStruct(2, 243, 300, binary(twoBytes()))}}))}) {
        EXPECT_EQ(same.resourceData(), block());
        EXPECT_EQ(same.protoType(), 1);
        EXPECT_TRUE(same.equalTo(&answer));
    }
    EXPECT_EQ(Answer().resourceData(), FwResourceData());
}

TEST(ResourceFileManagementAnswer, isRefusedAtEachTokenAtWhichItMayEnd)
{
    const QStringList whole = {"9", "2", "F3", "38", "1", "2", "0", "0", "A", "5"};
    expectRefusal("DE00076", "Empty answer received", "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                  [] { const Answer answer{QStringList()}; });
    for (int size = 1; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        QStringList tokens = whole.mid(0, size);
        expectRefusal("DE00077", "Error during command answer decoding: bad length",
                      "SerialProtoAnswer::SerialProtoAnswer(QStringList)",
                      [&] { const Answer answer(tokens); });
        tokens[0] = QString::number(size - 1, 16);
        if (size < 6)
            expectRefusal("DE02741", "Error during command answer decoding: bad length",
                          "FwResourceData::FwResourceData(QStringList)",
                          [&] { const Answer answer(tokens); });
        else
            expectRefusal("DE02746", "Error during command answer decoding: bad values",
                          "FwResourceData::FwResourceData(QStringList)",
                          [&] { const Answer answer(tokens); });
    }
}

TEST(ResourceFileManagementAnswer, isRefusedByItsBases)
{
    expectRefusal("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type",
                  "ProtoAnswer::ProtoAnswer(int, const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer((Value())); });
    expectRefusal("DE02735", "ResourceFileManagementBase: invalid parameter",
                  "ResourceFileManagementBase::ResourceFileManagementBase(const XmlRpc::XmlRpcValue&)",
                  [] { const Answer answer(structOf({})); });
    List empty;
    expectRefusal("DE02733", "ResourceFileManagementBase decoding failed: invalid QVariant value",
                  "ResourceFileManagementBase::ResourceFileManagementBase(QList<QVariant>&)",
                  [&] { const Answer answer(empty); });
    expectRefusal("DE02728", badBlock, ofBlock, [] { // what it writes is not what it reads
        const Answer answer(Answer(block()).toXmlRpcValue());
    });
    static_assert(!std::is_constructible_v<Answer, int>);
    static_assert(!std::is_constructible_v<Answer, const char *>);
}

TEST(ResourceFileManagementAnswer, comparesItsBlock)
{
    const Answer answer(block());
    const Answer other;
    const SerialProtoAnswer plain;
    EXPECT_FALSE(answer.equalTo(&other));
    EXPECT_FALSE(answer.equalTo(&plain));
    EXPECT_FALSE(answer.equalTo(nullptr));
    const std::unique_ptr<ProtoAnswer> clone(static_cast<const ProtoAnswer &>(answer).clone());
    ASSERT_EQ(className(clone.get()), "ResourceFileManagementAnswer");
    EXPECT_TRUE(answer.equalTo(clone.get()));
}

TEST(ResourceFileManagementAnswer, isExplained)
{
    EXPECT_EQ(
        membersOf("RES_FILE_MNGM"),
        (Lines{
            "ResourceFileManagementAnswer",
            "res_data (struct): read as a struct of subcmd, res_index, block_address and data; written as an "
            "array of four ints, the last 0 unless the data is a decimal number",
            "  XML-RPC, missing: DE02735", "  XML-RPC, cannot be made: DE02734",
            "  XML-RPC, without an int as subcmd: DE02728", "  XML-RPC, without an int as res_index: DE02729",
            "  XML-RPC, without an int as block_address: DE02730",
            "  XML-RPC, without bytes as data: DE02731", "  list, missing or another type: DE02732",
            "  tokens, : DE02739", "  XML-RPC, : DE02737", "  list, : DE02738", "  envelope, : DE02726"}));
}

} // namespace
