// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwupdateresult.h"

#include "base/basetesting.h"

#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "FwUpdateResult::FwUpdateResult(const XmlRpc::XmlRpcValue&)";
constexpr char noAddress[] = "FwUpdateResult: expected board address value";
constexpr char noResult[] = "FwUpdateResult: expected update result value";

TEST(FwUpdateResult, isNotSetAtFirst)
{
    EXPECT_EQ(FwUpdateResult().boardAddress, -1);
    EXPECT_EQ(FwUpdateResult().updateResult, -1);
    EXPECT_EQ(FwUpdateResult(3), FwUpdateResult(3, -1));
    FwUpdateResult result(3, 4);
    EXPECT_EQ(result.boardAddress, 3);
    EXPECT_EQ(result.updateResult, 4);
    result.clear();
    EXPECT_EQ(result, FwUpdateResult());
    result = FwUpdateResult(3, 4);
    result.setDefaults();
    EXPECT_EQ(result, FwUpdateResult(-1, -1));
}

TEST(FwUpdateResult, isAStructOfTwoIntegers)
{
    EXPECT_STREQ(FwUpdateResult::boardAddress_TAG, "board_address");
    EXPECT_STREQ(FwUpdateResult::updateResult_TAG, "update_result");
    EXPECT_EQ(dumped(FwUpdateResult(3, 4).toXmlRpcValue()), R"({"board_address": 3, "update_result": 4})");
    EXPECT_EQ(FwUpdateResult(structOf({{"board_address", 3}, {"update_result", 4}})), FwUpdateResult(3, 4));
    EXPECT_EQ(FwUpdateResult(structOf({{"board_address", -7}, {"update_result", 99}})),
              FwUpdateResult(-7, 99));
    EXPECT_EQ(FwUpdateResult(FwUpdateResult().toXmlRpcValue()), FwUpdateResult());
}

TEST(FwUpdateResult, isRefusedWithoutAMemberOrWithAnotherType)
{
    for (const Value &other : {Value("3"), Value(3.0), Value(true), arrayOf(3)}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00962", noAddress, ofValue, [&] {
            const FwUpdateResult result(structOf({{"board_address", other}, {"update_result", 4}}));
        });
        expectRefusal("DE00963", noResult, ofValue, [&] {
            const FwUpdateResult result(structOf({{"board_address", 3}, {"update_result", other}}));
        });
    }
    expectRefusal("DE00963", noResult, ofValue, [] {
        const FwUpdateResult result(structOf({{"board_address", 3}}));
    });
    for (const Value &other :
         {Value(), Value(3), Value("3"), arrayOf(3, 4), structOf({}), structOf({{"update_result", 4}})}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE00962", noAddress, ofValue, [&] { const FwUpdateResult result(other); });
    }
    static_assert(!std::is_constructible_v<FwUpdateResult, bool>);
    static_assert(!std::is_constructible_v<FwUpdateResult, double>);
    static_assert(!std::is_constructible_v<FwUpdateResult, const char *>);
}

TEST(FwUpdateResult, knowsItsNumbers)
{
    for (const int result : {0, 1, 2, 3, 4, 5, 6})
        EXPECT_TRUE(FwUpdateResult::checkUpdateResult(result)) << result;
    for (const int result : {-2, -1, 7})
        EXPECT_FALSE(FwUpdateResult::checkUpdateResult(result)) << result;
    for (const int address : {1, 215})
        EXPECT_TRUE(FwUpdateResult::checkBoardAddress(address)) << address;
    for (const int address : {-1, 0, 216})
        EXPECT_FALSE(FwUpdateResult::checkBoardAddress(address)) << address;
}

TEST(FwUpdateResult, anyChangeMakesItAnother)
{
    EXPECT_TRUE(FwUpdateResult(3, 4) == FwUpdateResult(3, 4));
    EXPECT_TRUE(FwUpdateResult(3, 4) != FwUpdateResult(3, 5));
    EXPECT_TRUE(FwUpdateResult(3, 4) != FwUpdateResult(4, 4));
}

TEST(FwUpdateResult, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(FwUpdateResult(3, 4));
    EXPECT_STREQ(variant.typeName(), "FwUpdateResult");
    EXPECT_EQ(variant, QVariant::fromValue(FwUpdateResult(3, 4)));
    EXPECT_EQ(variant.toMap(), (QVariantMap{{"board_address", 3}, {"update_result", 4}}));
    EXPECT_EQ(QVariant(variant.toMap()).value<FwUpdateResult>(), FwUpdateResult(3, 4));
}

} // namespace
