// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/flags_p.h"

#include "base/basetesting.h"

using namespace testing_base;

namespace {

struct Pump
{
    bool running = false;
    bool ready = false;
    bool hot = false;
    bool idle = false;
};

constexpr quv::MaskBit<Pump> bits[] = {
    {1, 0, &Pump::running},
    {1, 6, &Pump::hot},
    {2, 3, &Pump::ready},
    {3, 1, &Pump::idle, true},
};

constexpr quv::Condition<Pump> conditions[] = {
    {&Pump::hot, "Pump too hot", true},
    {&Pump::running, {"Pump of the dispenser running", "Pump of the mixer running"}},
    {&Pump::ready, "Pump ready"},
};

constexpr quv::Change<Pump> changes[] = {
    {&Pump::running, {"Dispenser on", "Mixer on"}, {"Dispenser off", "Mixer off"}},
    {&Pump::hot, "Hot", {}},
    {&Pump::ready, {}, "No longer ready"},
};

QList<QPair<QString, bool>> describe(const Pump &pump, bool isDispenser)
{
    QList<QPair<QString, bool>> lines;
    quv::describeConditions(conditions, pump, isDispenser, lines);
    return lines;
}

QList<QString> describe(const Pump &before, const Pump &after, bool isDispenser)
{
    QList<QString> lines;
    quv::describeChanges(changes, before, after, isDispenser, lines);
    return lines;
}

} // namespace

TEST(Flags, areSetFromTheBitsOfTheirWords)
{
    const unsigned masks[] = {0xFFFFFFFF, 0x41, 0x08, 0x00};
    Pump pump;
    quv::applyWords<bits>(masks, 3, pump);
    EXPECT_TRUE(pump.running);
    EXPECT_TRUE(pump.hot);
    EXPECT_TRUE(pump.ready);
    EXPECT_TRUE(pump.idle) << "true while the bit is clear";
}

TEST(Flags, areClearedFromTheBitsOfTheirWords)
{
    const unsigned masks[] = {0, ~0x41U, ~0x08U, 0x02};
    Pump pump = {true, true, true, true};
    quv::applyWords<bits>(masks, 3, pump);
    EXPECT_FALSE(pump.running);
    EXPECT_FALSE(pump.hot);
    EXPECT_FALSE(pump.ready);
    EXPECT_FALSE(pump.idle);
}

TEST(Flags, stayWhenTheirWordIsNotThere)
{
    const unsigned masks[] = {0, 0x40};
    Pump pump = {true, true, false, true};
    quv::applyWords<bits>(masks, 1, pump);
    EXPECT_FALSE(pump.running);
    EXPECT_TRUE(pump.hot);
    EXPECT_TRUE(pump.ready);
    EXPECT_TRUE(pump.idle);
    quv::applyWords<bits>(masks, 0, pump);
    EXPECT_TRUE(pump.hot);
}

TEST(Flags, areDescribedInTheTablesOrderWhenTheyHold)
{
    EXPECT_EQ(describe(Pump(), true), (QList<QPair<QString, bool>>()));
    const Pump pump = {true, true, true, true};
    EXPECT_EQ(describe(pump, true),
              (QList<QPair<QString, bool>>{
                  {"Pump too hot", true}, {"Pump of the dispenser running", false}, {"Pump ready", false}}));
    EXPECT_EQ(describe(pump, false),
              (QList<QPair<QString, bool>>{
                  {"Pump too hot", true}, {"Pump of the mixer running", false}, {"Pump ready", false}}));
}

TEST(Flags, appendTheirDescriptions)
{
    QList<QPair<QString, bool>> lines = {{"first", true}};
    quv::describeConditions(conditions, Pump{false, true, false, false}, true, lines);
    EXPECT_EQ(lines, (QList<QPair<QString, bool>>{{"first", true}, {"Pump ready", false}}));
}

TEST(Flags, areDescribedOnAndOffWhenTheyChange)
{
    const Pump off;
    const Pump on = {true, true, true, true};
    EXPECT_EQ(describe(off, off, true), QList<QString>());
    EXPECT_EQ(describe(on, on, true), QList<QString>());
    EXPECT_EQ(describe(off, on, true), (QList<QString>{"Dispenser on", "Hot"}));
    EXPECT_EQ(describe(off, on, false), (QList<QString>{"Mixer on", "Hot"}));
    EXPECT_EQ(describe(on, off, true), (QList<QString>{"Dispenser off", "No longer ready"}));
    EXPECT_EQ(describe(on, off, false), (QList<QString>{"Mixer off", "No longer ready"}));
}

TEST(Flags, takeTheDispensersTextForAMixerWithoutOneOfItsOwn)
{
    const quv::DeviceText both("Door");
    EXPECT_STREQ(both.of(true), "Door");
    EXPECT_STREQ(both.of(false), "Door");
    const quv::DeviceText none;
    EXPECT_EQ(none.of(true), nullptr);
    EXPECT_EQ(none.of(false), nullptr);
}
