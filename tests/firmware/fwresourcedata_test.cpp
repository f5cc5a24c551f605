// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwresourcedata.h"

#include "firmware/resourcetesting.h"

#include <limits>
#include <type_traits>

namespace {

using namespace testing_firmware;

using Data = FwResourceData;

constexpr char ofTokens[] = "FwResourceData::FwResourceData(QStringList)";
constexpr char badLength[] = "Error during command answer decoding: bad length";
constexpr char badValues[] = "Error during command answer decoding: bad values";

Data blockAt(int address, const QByteArray &data)
{
    return {RFM_Subcommand{2}, 243, address, data};
}

void expectFields(const Data &block, int subcommand, int index, int address, const QByteArray &data)
{
    EXPECT_EQ(block.subcommand, subcommand);
    EXPECT_EQ(block.resourceIndex, index);
    EXPECT_EQ(block.blockAddress, address);
    EXPECT_EQ(block.data, data);
}

TEST(FwResourceData, isAnEmptyBlockAtFirst)
{
    expectFields(Data(), 0, 0, 0, "");
    expectFields(blockAt(300, twoBytes()), 2, 243, 300, QByteArray("\x00\xA5", 2));
    Data block = blockAt(300, twoBytes());
    block.setDefaults();
    expectFields(block, 0, 0, 0, "");
}

// ---------------------------------------------------------------- to the firmware

TEST(FwResourceData, isSentWithItsBytesInHalves)
{
    EXPECT_EQ(blockAt(300, twoBytes()).serialParameters(), (QList<int>{2, 243, 56, 1, 2, 0, 0, 10, 5}));
    EXPECT_EQ(blockAt(0, "\xFF\x10").serialParameters(), (QList<int>{2, 243, 0, 0, 2, 15, 15, 1, 0}));
    EXPECT_EQ(Data().serialParameters(), (QList<int>{0, 0, 0, 0, 0}));
    EXPECT_EQ(Data(RFM_Subcommand{-1}, -2, 1, "").serialParameters(), (QList<int>{-1, -2, 1, 0, 0}));
}

TEST(FwResourceData, isSentAsItsLengthWhenAllBytesAreZero)
{
    EXPECT_EQ(blockAt(1, QByteArray(3, '\0')).serialParameters(), (QList<int>{2, 243, 1, 0, 3}));
    EXPECT_EQ(blockAt(1, QByteArray(500, '\0')).serialParameters(), (QList<int>{2, 243, 1, 0, 500}));
    EXPECT_EQ(blockAt(1, QByteArray("\x00\x00\x01", 3)).serialParameters(),
              (QList<int>{2, 243, 1, 0, 3, 0, 0, 0, 0, 0, 1}));
}

TEST(FwResourceData, isSentToAnAddressOfTwoDigits)
{
    struct Row
    {
        int address;
        int low;
        int high;
    };
    constexpr Row rows[] = {{0, 0, 0},
                            {1, 1, 0},
                            {243, 243, 0},
                            {244, 0, 1},
                            {300, 56, 1},
                            {59535, 243, 243},
                            {59536, 245, 245}, // two digits do not hold it
                            {std::numeric_limits<int>::max(), 245, 245},
                            {-1, 245, 245},
                            {std::numeric_limits<int>::min(), 245, 245}};
    for (const Row &row : rows)
        EXPECT_EQ(blockAt(row.address, "").serialParameters(), (QList<int>{2, 243, row.low, row.high, 0}))
            << row.address;
}

// ---------------------------------------------------------------- from the firmware

const QStringList wholeBlock = {"2", "F3", "38", "1", "2", "0", "0", "A", "5"};

TEST(FwResourceData, isReadFromTokens)
{
    expectFields(Data(wholeBlock), 2, 243, 300, twoBytes());
    expectFields(Data(wholeBlock + QStringList{"zz", "1"}), 2, 243, 300, twoBytes()); // more is not read
    expectFields(Data(QStringList{"0", "0", "0", "0", "0"}), 0, 0, 0, "");
    expectFields(Data(QStringList{"0", "0", "0", "0", "0", "zz"}), 0, 0, 0, "");
    expectFields(Data(QStringList{"-1", "-2", "0", "0", "0"}), -1, -2, 0, "");
    expectFields(Data(QStringList{"7fffffff", "0xF3", "0", "0", "0"}), 2147483647, 243, 0, "");
    expectFields(Data(QStringList{"2", "F3", "F5", "F5", "0"}), 2, 243, 60025, ""); // none, when it is sent
}

TEST(FwResourceData, readsABlockOfZerosOnlyInFull)
{
    expectFields(Data(QStringList{"2", "F3", "0", "0", "2", "0", "0", "0", "0"}), 2, 243, 0,
                 QByteArray(2, '\0'));
    expectRefusal("DE02746", badValues, ofTokens, [] {
        const Data block(QStringList{"2", "F3", "0", "0", "2"});
    });
}

TEST(FwResourceData, takesALowDigitAndHalvesThatAreNoNumbersForZero)
{
    for (const char *low : {"zz", "", "-1", "80000000", "FFFFFFFF", "100000000"})
        expectFields(Data(QStringList{"2", "F3", low, "1", "0"}), 2, 243, 244, "");
    expectFields(Data(QStringList{"2", "F3", "7FFFFFFF", "0", "0"}), 2, 243, 2147483647, "");
    expectRefusal("DE02744", badValues, ofTokens, [] {
        const Data block(QStringList{"2", "F3", "7FFFFFFF", "1", "0"});
    });
    expectFields(Data(QStringList{"2", "F3", "", "0", "2", "x", "4", "4", "-1"}), 2, 243, 0, "\x04\x40");
    expectFields(Data(QStringList{"2", "F3", "0", "0", "1", "3", "11"}), 2, 243, 0, "\x41"); // 3 * 16 + 17
}

TEST(FwResourceData, isRefusedAtEachTokenAtWhichItMayEnd)
{
    for (int size = 0; size < wholeBlock.size(); ++size) {
        SCOPED_TRACE(size);
        const QStringList tokens = wholeBlock.mid(0, size);
        if (size < 5)
            expectRefusal("DE02741", badLength, ofTokens, [&] { const Data block(tokens); });
        else
            expectRefusal("DE02746", badValues, ofTokens, [&] { const Data block(tokens); });
    }
    for (const char *count : {"3", "FFFFFFFF", "80000000"}) {
        QStringList tokens = wholeBlock;
        tokens[4] = count;
        expectRefusal("DE02746", badValues, ofTokens, [&] { const Data block(tokens); });
    }
}

TEST(FwResourceData, isRefusedWithTokensThatAreNoNumbers)
{
    struct Row
    {
        int place;
        const char *code;
        std::initializer_list<const char *> others;
    };
    const Row rows[] = {
        {0, "DE02742", {"zz", "", "80000000", "100000000"}},
        {1, "DE02743", {"zz", "", "80000000", "100000000"}},
        {3, "DE02744", {"zz", "", "-1", "80000000", "1000000"}}, // the last beyond all addresses
        {4, "DE02745", {"zz", "", "-1", "100000000"}}};
    for (const Row &row : rows) {
        for (const char *other : row.others) {
            SCOPED_TRACE(other);
            QStringList tokens = wholeBlock;
            tokens[row.place] = other;
            expectRefusal(row.code, badValues, ofTokens, [&] { const Data block(tokens); });
        }
    }
}

// ---------------------------------------------------------------- XML-RPC

TEST(FwResourceData, isReadFromAStructAndWrittenAsAnArray)
{
    const Data block(blockStruct(2, 243, 300, binary(twoBytes())));
    expectFields(block, 2, 243, 300, twoBytes());
    expectFields(Data(blockStruct(2, -1, -300, "12")), 2, -1, -300, "12"); // a text is its bytes

    struct Row
    {
        QByteArray data;
        const char *written;
    };
    const Row rows[] = {{twoBytes(), "[2, 243, 300, 0]"}, {"", "[2, 243, 300, 0]"},
                        {"123", "[2, 243, 300, 123]"},    {"-5", "[2, 243, 300, -5]"},
                        {"0x10", "[2, 243, 300, 0]"},     {"99999999999", "[2, 243, 300, 0]"}};
    for (const Row &row : rows)
        EXPECT_EQ(dumped(blockAt(300, row.data).toXmlRpcValue()), row.written);
    expectRefusal("DE02728", badBlock, ofBlock, [&] { const Data again(block.toXmlRpcValue()); });
}

TEST(FwResourceData, needsEachMember)
{
    expectMembersNeeded<Data>(blockStruct(2, 243, 300, binary("x")),
                              {{"subcmd", "DE02728", {"1", true, 1.0, structOf({})}},
                               {"res_index", "DE02729", {"1", true, 1.0, arrayOf(1)}},
                               {"block_address", "DE02730", {"1", true, 1.0, arrayOf()}},
                               {"data", "DE02731", {7, true, 7.5, arrayOf(0, 165), structOf({})}}},
                              badBlock, ofBlock);
    static_assert(!std::is_constructible_v<Data, int>);
    static_assert(!std::is_constructible_v<Data, const char *>);
}

// ---------------------------------------------------------------- comparing, variants

TEST(FwResourceData, differsInEachField)
{
    const Data block = blockAt(300, twoBytes());
    EXPECT_TRUE(block == blockAt(300, twoBytes()));
    EXPECT_FALSE(block != blockAt(300, twoBytes()));
    for (const Data &other :
         {Data(RFM_Subcommand{3}, 243, 300, twoBytes()), Data(RFM_Subcommand{2}, 242, 300, twoBytes()),
          blockAt(301, twoBytes()), blockAt(300, "\xA5")}) {
        EXPECT_TRUE(block != other);
        EXPECT_FALSE(block == other);
    }
}

TEST(FwResourceData, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(blockAt(300, twoBytes()));
    EXPECT_STREQ(variant.typeName(), "FwResourceData");
    EXPECT_EQ(variant, QVariant::fromValue(blockAt(300, twoBytes())));
    EXPECT_NE(variant, QVariant::fromValue(blockAt(301, twoBytes())));
    EXPECT_EQ(QVariant(blockMap(2, 243, 300, twoBytes())).value<Data>(), blockAt(300, twoBytes()));
}

} // namespace
