// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefilemanagementbase.h"

#include "firmware/resourcetesting.h"

#include <type_traits>

namespace {

using namespace testing_firmware;

using Base = ResourceFileManagementBase;

constexpr char ofValue[] =
    "ResourceFileManagementBase::ResourceFileManagementBase(const XmlRpc::XmlRpcValue&)";
constexpr char ofList[] = "ResourceFileManagementBase::ResourceFileManagementBase(QList<QVariant>&)";
constexpr char invalid[] = "ResourceFileManagementBase: invalid parameter";

FwResourceData block()
{
    return {RFM_Subcommand{2}, 243, 300, twoBytes()};
}

TEST(ResourceFileManagementBase, holdsABlock)
{
    EXPECT_EQ(Base().resourceData(), FwResourceData());
    Base base(block());
    EXPECT_EQ(base.resourceData(), block());
    EXPECT_EQ(base.serialParameters(), (QList<int>{2, 243, 56, 1, 2, 0, 0, 10, 5}));
    EXPECT_EQ(base.parameters(), (List{2, 243, 300, twoBytes()}));
    EXPECT_EQ(dumped(base.xmlRpcValue()), R"({"res_data": [2, 243, 300, 0]})");
    base.setDefaultsBase();
    EXPECT_EQ(base.resourceData(), FwResourceData());
    base.setResourceData(block());
    EXPECT_EQ(base.resourceData(), block());
}

TEST(ResourceFileManagementBase, readsABlockInThreeForms)
{
    EXPECT_EQ(Base(QStringList{"2", "F3", "38", "1", "2", "0", "0", "A", "5"}).resourceData(), block());
    EXPECT_EQ(Base(structOf({{"res_data", blockStruct(2, 243, 300, binary(twoBytes()))}})).resourceData(),
              block());
    for (const QVariant &item : {QVariant::fromValue(block()), QVariant(blockMap(2, 243, 300, twoBytes()))}) {
        List list = {item, "rest"};
        EXPECT_EQ(Base(list).resourceData(), block());
    }
}

// DE02734 and DE02740 are the contract: a block has words of its own for all that fails in it.

TEST(ResourceFileManagementBase, refusesWhatHoldsNoBlock)
{
    for (const Value &none :
         {Value(), Value(7), Value("x"), arrayOf(), structOf({}), blockStruct(2, 243, 300, binary("x"))}) {
        SCOPED_TRACE(dumped(none));
        expectRefusal("DE02735", invalid, ofValue, [&] { const Base base(none); });
    }
    for (const Value &bad : {Value(7), arrayOf(2, 243, 300, 0), structOf({})})
        expectRefusal("DE02728", badBlock, ofBlock, [&] { const Base base(structOf({{"res_data", bad}})); });
    expectRefusal("DE02731", badBlock, ofBlock, [] {
        const Base base(structOf({{"res_data", blockStruct(2, 243, 300, 7)}}));
    });

    List empty;
    expectRefusal("DE02733", "ResourceFileManagementBase decoding failed: invalid QVariant value", ofList,
                  [&] { const Base base(empty); });
    for (const QVariant &other : {QVariant(), QVariant(7), QVariant("x"), QVariant(List{2, 243, 300, ""}),
                                  QVariant(QVariantMap{{"data", "x"}})}) {
        SCOPED_TRACE(shown({other}));
        List list = {other};
        expectRefusal("DE02732", "ResourceFileManagementBase: invalid FwResourceDataList parameter", ofList,
                      [&] { const Base base(list); });
    }
    List written = Base(block()).parameters(); // four items, of which the first is no block
    expectRefusal("DE02732", "ResourceFileManagementBase: invalid FwResourceDataList parameter", ofList,
                  [&] { const Base base(written); });
    List bad = {blockMap(2, 243, "x", "")};
    expectRefusal("DE02730", badBlock, ofBlock, [&] { const Base base(bad); });
    expectRefusal("DE02741", "Error during command answer decoding: bad length",
                  "FwResourceData::FwResourceData(QStringList)", [] { const Base base{QStringList()}; });
    static_assert(!std::is_constructible_v<Base, int>);
    static_assert(!std::is_constructible_v<Base, const char *>);
}

TEST(ResourceFileManagementBase, comparesItsBlock)
{
    EXPECT_TRUE(Base(block()) == Base(block()));
    EXPECT_FALSE(Base(block()) != Base(block()));
    EXPECT_TRUE(Base(block()) != Base());
    EXPECT_FALSE(Base(block()) == Base());
}

} // namespace
