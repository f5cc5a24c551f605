// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stiritem.h"

#include "processes/stirredmachine.h"

#include <gmock/gmock.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_processes;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char ofItem[] = "StirItem::StirItem(QVariant, qlonglong)";
constexpr char ofValue[] = "StirItem::StirItem(const XmlRpc::XmlRpcValue&)";

TEST(StirItem, standsForAllCircuitsAtFirst)
{
    const StirItem item;
    EXPECT_EQ(item.item(), QVariant(0));
    EXPECT_EQ(item.item().userType(), QMetaType::Int);
    EXPECT_EQ(item.duration(), 30);
    EXPECT_TRUE(item.isNullItem());
    EXPECT_EQ(dumped(item.toXmlRpcValue()), R"({"duration": 30, "item": 0})");
}

TEST(StirItem, takesADurationForAllCircuits)
{
    const StirItem item(40);
    EXPECT_TRUE(item.isNullItem());
    EXPECT_EQ(item.duration(), 40);
    static_assert(!std::is_constructible_v<StirItem, bool>);
    static_assert(!std::is_constructible_v<StirItem, double>);
    static_assert(!std::is_constructible_v<StirItem, const char *>);
}

TEST(StirItem, isANumberOrAText)
{
    EXPECT_EQ(StirItem(3, 40).item(), QVariant(3));
    EXPECT_FALSE(StirItem(3, 40).isNullItem());
    EXPECT_EQ(StirItem(QString("KX"), 40).item(), QVariant("KX"));
    EXPECT_FALSE(StirItem(QString("0"), 40).isNullItem());
    for (const QVariant &other : {QVariant(), QVariant(true), QVariant(3.0), QVariant(3LL), QVariant(3U),
                                  QVariant(QByteArray("KX")), QVariant(List{3})}) {
        SCOPED_TRACE(shown({other}));
        expectRefusal("DE01876", "Stirring item: invalid parameter", ofItem, [&] { StirItem(other, -2); });
        StirItem item(3, 40);
        EXPECT_FALSE(item.setItem(other));
        EXPECT_EQ(item.item(), QVariant(3));
    }
}

TEST(StirItem, hasADurationOfAStirringOrItsOwn)
{
    for (const long long duration : {-1LL, 0LL, 1LL, 60514LL, 60515LL}) {
        StirItem item;
        EXPECT_TRUE(item.setDuration(duration));
        EXPECT_EQ(item.duration(), duration);
        EXPECT_EQ(StirItem(3, duration).duration(), duration);
    }
    for (const long long duration : {-2LL, 60516LL, 4294967299LL}) {
        SCOPED_TRACE(duration);
        StirItem item(3, 40);
        EXPECT_FALSE(item.setDuration(duration));
        EXPECT_EQ(item.duration(), 40);
        expectRefusal("DE01877", "Stirring duration: invalid parameter", ofItem,
                      [&] { StirItem(3, duration); });
        expectRefusal("DE01877", "Stirring duration: invalid parameter", ofItem,
                      [&] { const StirItem all(duration); });
    }
}

TEST(StirItem, goesRound)
{
    for (const StirItem &item : {StirItem(3, 40), StirItem(QString("KX"), -1), StirItem(0, 60515),
                                 StirItem(QString(), 0), StirItem(QString::fromUtf8("\u00E8"), 1)}) {
        bool ok = false;
        const Value value = item.toXmlRpcValue(&ok);
        EXPECT_TRUE(ok);
        EXPECT_EQ(StirItem(value), item) << dumped(value);
        EXPECT_EQ(QVariant::fromValue(item).toMap(),
                  (QVariantMap{{"item", item.item()}, {"duration", static_cast<int>(item.duration())}}));
        EXPECT_EQ(QVariant(QVariant::fromValue(item).toMap()).value<StirItem>(), item);
        const std::unique_ptr<StirItem> clone(item.clone());
        EXPECT_EQ(*clone, item);
    }
    EXPECT_EQ(dumped(StirItem(QString("KX"), -1).toXmlRpcValue()), R"({"duration": -1, "item": "KX"})");
}

TEST(StirItem, anyChangeMakesItAnother)
{
    const StirItem item(3, 40);
    EXPECT_TRUE(item == StirItem(3, 40));
    EXPECT_TRUE(item != StirItem(4, 40));
    EXPECT_TRUE(item != StirItem(3, 41));
    EXPECT_TRUE(item != StirItem(QString("3"), 40));
}

TEST(StirItem, refusesAStructThatIsNone)
{
    constexpr char bad[] = "Bad command parameter";
    const auto expectRefused = [&](const char *code, const Value &value) {
        SCOPED_TRACE(dumped(value));
        expectRefusal(code, bad, ofValue, [&] { const StirItem item(value); });
    };
    for (const Value &other : {Value(), Value(3), Value("KX"), Value(true), arrayOf(3, 40)})
        expectRefused("DE01880", other);
    expectRefused("DE01882", structOf({}));
    expectRefused("DE01882", structOf({{"duration", "x"}})); // the item first
    for (const Value &item : {Value(true), Value(3.0), arrayOf(3), structOf({})})
        expectRefused("DE01881", structOf({{"item", item}}));
    expectRefused("DE01916", structOf({{"item", 3}}));
    for (const Value &duration : {Value(true), Value(40.0), Value("40"), arrayOf(), Value(-2), Value(60516)})
        expectRefused("DE01883", structOf({{"item", 3}, {"duration", duration}}));
}

// ---------------------------------------------------------------- on a machine

struct Named
{
    bool isGood = false;
    QList<int> positions = {99};
    QList<int> durations = {99};
};

Named named(const StirItem &item, int type, const FW_Dispenser &machine)
{
    Named result;
    result.isGood = item.convertItemToPositionsID(type, machine, result.positions, result.durations);
    return result;
}

void expectNamed(const Named &result, const QList<int> &positions, const QList<int> &durations)
{
    EXPECT_TRUE(result.isGood);
    EXPECT_EQ(result.positions, positions);
    EXPECT_EQ(result.durations, durations);
}

void expectNothing(const Named &result)
{
    EXPECT_FALSE(result.isGood);
    EXPECT_THAT(result.positions, IsEmpty());
    EXPECT_THAT(result.durations, IsEmpty());
}

TEST(StirItem, stirsForItsDurationOrThatOfTheMotor)
{
    FW_Dispenser machine = partlyStirredMachine();
    EXPECT_EQ(StirItem(1, 9).getStirringDuration(1, machine), 9);
    EXPECT_EQ(StirItem(1, 0).getStirringDuration(1, machine), 0);
    EXPECT_EQ(StirItem(1, 9).getStirringDuration(99, machine), 9);
    EXPECT_EQ(StirItem(1, -1).getStirringDuration(1, machine), 30);
    EXPECT_EQ(StirItem(1, -1).getStirringDuration(5, machine), 20);
    EXPECT_EQ(StirItem(1, -1).getStirringDuration(6, machine), -1);
    EXPECT_EQ(StirItem(1, -1).getStirringDuration(99, machine), -1);
}

TEST(StirItem, namesAPosition)
{
    const FW_Dispenser machine = partlyStirredMachine();
    expectNamed(named(StirItem(3, 9), 0, machine), {3}, {9});
    expectNamed(named(StirItem(3, -1), 0, machine), {3}, {40});
    expectNamed(named(StirItem(6, -1), 0, machine), {6}, {-1});
    expectNamed(named(StirItem(99, 9), 0, machine), {99}, {9}); // nobody looks
    expectNamed(named(StirItem(9), 0, machine), {0}, {9});
    expectNothing(named(StirItem(QString("3"), 9), 0, machine));
}

TEST(StirItem, namesACircuit)
{
    FW_Dispenser machine = stirredMachine();
    expectNamed(named(StirItem(20, -1), 1, machine), {2}, {30});
    machine.getCircuitById(20)->setEnabled(false);
    expectNamed(named(StirItem(20, -1), 1, machine), {2}, {30});
    expectNothing(named(StirItem(2, 9), 1, machine)); // a position
    expectNothing(named(StirItem(QString("20"), 9), 1, machine));
}

TEST(StirItem, namesACanister)
{
    FW_Dispenser machine = stirredMachine();
    expectNamed(named(StirItem(102, 9), 2, machine), {1, 2}, {9, 9});
    expectNamed(named(StirItem(103, -1), 2, machine), {3}, {40});
    machine.getCircuitByPosition(1)->setEnabled(false);
    expectNamed(named(StirItem(102, -1), 2, machine), {2}, {30});
    machine.getCircuitByPosition(2)->setEnabled(false);
    expectNamed(named(StirItem(102, -1), 2, machine), {}, {});
    machine.getCanisterById(103)->setEnabled(false);
    expectNothing(named(StirItem(103, 9), 2, machine));
    expectNothing(named(StirItem(1, 9), 2, machine));
    expectNothing(named(StirItem(QString("102"), 9), 2, machine));
}

TEST(StirItem, namesASystemColorant)
{
    FW_Dispenser machine = stirredMachine();
    expectNamed(named(StirItem(8, -1), 3, machine), {1, 2, 3}, {30, 30, 40});
    expectNamed(named(StirItem(7, 9), 3, machine), {5}, {9});
    expectNothing(named(StirItem(9), 3, machine)); // no colorant has the number 0
    expectNothing(named(StirItem(1, 9), 3, machine));
    expectNothing(named(StirItem(QString("8"), 9), 3, machine));

    FW_Colorant off("O");
    off.setSystemColorantID(9);
    off.setEnabled(false);
    machine.addColorant(off);
    expectNothing(named(StirItem(9, 9), 3, machine));
}

TEST(StirItem, namesAColorantByItsCode)
{
    FW_Dispenser machine = stirredMachine();
    expectNamed(named(StirItem(QString("C"), 9), 4, machine), {1, 2, 3}, {9, 9, 9});
    expectNamed(named(StirItem(QString("N"), 9), 4, machine), {}, {});
    expectNothing(named(StirItem(QString("c"), 9), 4, machine));
    expectNothing(named(StirItem(8, 9), 4, machine));

    FW_Colorant off("O");
    off.setEnabled(false);
    machine.addColorant(off);
    expectNothing(named(StirItem(QString("O"), 9), 4, machine));
}

TEST(StirItem, namesNothingOfATypeThatThereIsNot)
{
    for (const int type : {-1, 5, 100})
        expectNothing(named(StirItem(3, 9), type, stirredMachine()));
}

} // namespace
