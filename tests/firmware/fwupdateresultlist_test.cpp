// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwupdateresultlist.h"

#include "base/basetesting.h"
#include "base/outofmemory.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Results = QList<FwUpdateResult>;

constexpr char ofValue[] = "FwUpdateResultList::FwUpdateResultList(const XmlRpc::XmlRpcValue&)";
constexpr char ofResult[] = "FwUpdateResult::FwUpdateResult(const XmlRpc::XmlRpcValue&)";

/** A board with each of the results, its address 1 and upward. */
FwUpdateResultList listOf(const QList<int> &results)
{
    Results entries;
    for (const int result : results)
        entries.append(FwUpdateResult(entries.size() + 1, result));
    return FwUpdateResultList(entries);
}

Value entry(int address, int result)
{
    return structOf({{"board_address", address}, {"update_result", result}});
}

// ---------------------------------------------------------------- how it is made

TEST(FwUpdateResultList, beginsWithoutResults)
{
    EXPECT_TRUE(FwUpdateResultList().results().isEmpty());
    EXPECT_EQ(FwUpdateResultList(QList<int>{7, 9}).results(), (Results{{7, -1}, {9, -1}}));
    FwUpdateResultList cleared = listOf({0, 2});
    cleared.clear();
    EXPECT_EQ(cleared, FwUpdateResultList());
}

TEST(FwUpdateResultList, hasAnEntryForEachAddressOfEachFile)
{
    const FwUpdateResultList ofOne(FirmwareFiles{FirmwareFile("x", {3, 4}, 2)});
    EXPECT_EQ(ofOne.results(), (Results{{3, -1}, {4, -1}}));
    EXPECT_FALSE(ofOne.successfullyUpdate(false));
    EXPECT_EQ(ofOne.getCommandStatusResult(), 1);

    const FwUpdateResultList ofThree(FirmwareFiles{FirmwareFile("x", {4, 3}, 2), FirmwareFile("y", {}, 1),
                                                   FirmwareFile("z", {201, 4}, 1)});
    EXPECT_EQ(ofThree.results(), (Results{{4, -1}, {3, -1}, {201, -1}, {4, -1}}));
    EXPECT_EQ(FwUpdateResultList(FirmwareFiles()), FwUpdateResultList());
}

TEST(FwUpdateResultList, isAnArrayOverXmlRpc)
{
    const FwUpdateResultList list(Results{{3, 0}, {4, 5}});
    EXPECT_EQ(dumped(list.toXmlRpcValue()),
              R"([{"board_address": 3, "update_result": 0}, {"board_address": 4, "update_result": 5}])");
    EXPECT_EQ(FwUpdateResultList(arrayOf(entry(3, 0), entry(4, 5))), list);
    EXPECT_EQ(dumped(FwUpdateResultList().toXmlRpcValue()), "[]");
}

TEST(FwUpdateResultList, isRefusedWithoutResults)
{
    expectRefusal("DE00969", "FwUpdateResultList: no FwUpdateResult found", ofValue,
                  [] { const FwUpdateResultList list(arrayOf()); });
    for (const Value &other : {Value(), Value(3), Value("3"), entry(3, 0)}) {
        SCOPED_TRACE(dumped(other));
        expectRefusal("DE03240", "FwUpdateResultList: expected xml-rpc array type", ofValue,
                      [&] { const FwUpdateResultList list(other); });
    }
    static_assert(!std::is_constructible_v<FwUpdateResultList, bool>);
    static_assert(!std::is_constructible_v<FwUpdateResultList, int>);
    static_assert(!std::is_constructible_v<FwUpdateResultList, double>);
    static_assert(!std::is_constructible_v<FwUpdateResultList, const char *>);
}

TEST(FwUpdateResultList, passesOnWhatAResultRefuses)
{
    expectRefusal("DE00962", "FwUpdateResult: expected board address value", ofResult,
                  [] { const FwUpdateResultList list(arrayOf(entry(3, 0), 4)); });
    expectRefusal("DE00963", "FwUpdateResult: expected update result value", ofResult, [] {
        const FwUpdateResultList list(arrayOf(entry(3, 0), structOf({{"board_address", 4}})));
    });
    const Value value = arrayOf(entry(3, 0));
    const FwUpdateResultList ready(value);
    expectRefusal("DE00968", "FwUpdateResultList: invalid FwUpdateResult parameter", ofValue,
                  [&] { outOfMemoryOnce([&] { const FwUpdateResultList list(value); }); });
}

TEST(FwUpdateResultList, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(listOf({0, 2}));
    EXPECT_STREQ(variant.typeName(), "FwUpdateResultList");
    EXPECT_EQ(variant, QVariant::fromValue(listOf({0, 2})));
    EXPECT_NE(variant, QVariant::fromValue(listOf({0, 3})));
    EXPECT_EQ(variant.value<FwUpdateResultList>(), listOf({0, 2}));
}

// ---------------------------------------------------------------- its entries

TEST(FwUpdateResultList, tellsAndChangesEntriesByTheirPlace)
{
    FwUpdateResultList list(Results{{7, 0}, {9, 5}});
    EXPECT_EQ(list.boardAddress(1), 9);
    EXPECT_EQ(list.updateResult(1), 5);
    EXPECT_TRUE(list.setBoardAddress(0, 8));
    EXPECT_TRUE(list.setUpdateResult(1, 6));
    EXPECT_EQ(list.results(), (Results{{8, 0}, {9, 6}}));
    for (const int index : {-1, 2}) {
        EXPECT_EQ(list.boardAddress(index), -1);
        EXPECT_EQ(list.updateResult(index), -1);
        EXPECT_FALSE(list.setBoardAddress(index, 1));
        EXPECT_FALSE(list.setUpdateResult(index, 1));
    }
    EXPECT_EQ(list.results(), (Results{{8, 0}, {9, 6}}));
}

TEST(FwUpdateResultList, changesAllEntries)
{
    FwUpdateResultList list(Results{{7, 0}, {9, 5}});
    list.setAllUpdateResult(2);
    EXPECT_EQ(list.results(), (Results{{7, 2}, {9, 2}}));
    list.setAllBoardAddress(3);
    EXPECT_EQ(list.results(), (Results{{3, 2}, {3, 2}}));
}

TEST(FwUpdateResultList, tellsAndChangesTheFirstEntryOfAnAddress)
{
    FwUpdateResultList list(Results{{7, 0}, {9, 5}, {7, 2}});
    EXPECT_EQ(list.addressUpdateResult(7), 0);
    EXPECT_EQ(list.addressUpdateResult(9), 5);
    EXPECT_EQ(list.addressUpdateResult(8), -1);
    EXPECT_TRUE(list.setAddressUpdateResult(7, 1));
    EXPECT_EQ(list.results(), (Results{{7, 1}, {9, 5}, {7, 2}}));
    EXPECT_FALSE(list.setAddressUpdateResult(8, 1));
    EXPECT_EQ(list.results(), (Results{{7, 1}, {9, 5}, {7, 2}}));
}

TEST(FwUpdateResultList, changesSeveralAddresses)
{
    FwUpdateResultList list(Results{{7, 0}, {9, 5}, {10, 2}});
    EXPECT_TRUE(list.setAddressesUpdateResults({9, 7}, 3));
    EXPECT_EQ(list.results(), (Results{{7, 3}, {9, 3}, {10, 2}}));
    EXPECT_FALSE(list.setAddressesUpdateResults({8, 10}, 6)) << "what is there is set all the same";
    EXPECT_EQ(list.results(), (Results{{7, 3}, {9, 3}, {10, 6}}));
    EXPECT_TRUE(list.setAddressesUpdateResults({}, 0));
    EXPECT_EQ(list.results(), (Results{{7, 3}, {9, 3}, {10, 6}}));
}

// ---------------------------------------------------------------- what it says of the update

TEST(FwUpdateResultList, saysHowTheUpdateHasGone)
{
    struct Row
    {
        QList<int> results;
        bool strictlyUpdated;
        bool updated;
        bool oneUpdated;
        bool needsReboot;
        bool interrupted;
        bool failed;
        bool softErrors;
        int status;
    };
    const Row rows[] = {
        // results              strict updated one  reboot interr failed soft   status
        {{}, false, false, false, false, false, false, true, 1},
        {{-1, -1}, false, false, false, false, false, false, true, 1},
        {{0}, true, true, true, false, false, false, false, 0},
        {{0, 0}, true, true, true, false, false, false, false, 0},
        {{1}, false, false, false, false, true, false, false, -3},
        {{2}, false, false, false, false, false, true, false, -1},
        {{3}, false, true, false, false, false, false, false, 0},
        {{4}, false, true, false, false, false, true, false, 0},
        {{5}, false, false, false, true, false, true, false, -1},
        {{6}, false, false, false, true, false, true, false, -1},
        {{7}, false, false, false, false, false, true, true, -1},
        {{0, 3, 4}, false, true, true, false, false, true, false, 0},
        {{0, 4}, false, true, true, false, false, true, false, 0},
        {{1, 2}, false, false, false, false, true, true, false, -3},
        {{2, 1}, false, false, false, false, true, true, false, -3},
        {{4, 1}, false, false, false, false, true, true, false, -3},
        {{0, -1}, false, false, true, false, false, false, false, 1},
        {{-1, 0}, false, false, true, false, false, false, false, 1},
        {{3, -1}, false, false, false, false, false, false, false, 1},
        {{4, -1}, false, false, false, false, false, true, false, -1},
        {{-1, 7, -2}, false, false, false, false, false, true, true, -1},
        {{-1, 6}, false, false, false, true, false, true, false, -1},
    };
    for (const Row &row : rows) {
        const FwUpdateResultList list = listOf(row.results);
        SCOPED_TRACE(dumped(list.toXmlRpcValue()));
        EXPECT_EQ(list.successfullyUpdate(true), row.strictlyUpdated);
        EXPECT_EQ(list.successfullyUpdate(false), row.updated);
        EXPECT_EQ(list.atLeastOneSuccessfullyUpdate(), row.oneUpdated);
        EXPECT_EQ(list.needBoardReboot(), row.needsReboot);
        EXPECT_EQ(list.hasBeenInterrupted(), row.interrupted);
        EXPECT_EQ(list.failed(), row.failed);
        EXPECT_EQ(list.hasSoftErrors(), row.softErrors);
        EXPECT_EQ(list.getCommandStatusResult(), row.status);
    }
}

} // namespace
