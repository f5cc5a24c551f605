// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/pul_cdata.h"

#include "sharedparttesting.h"

#include <QuvFramework/fw_cleaningmotor.h>

using namespace testing_configuration;

namespace {

constexpr int firstBrush = 12;
constexpr int secondBrush = 18;

const Structure structure = {16,
                             "PUL_cdata",
                             "DE01618",
                             "Invalid Dispenser data",
                             "DE02798",
                             "DE01629",
                             "DE01631",
                             {
                                 {"Brush Position", "DE01620"},
                                 {"Self Cleaning Time", "DE01621"},
                                 {"Quick Cleaning Enable", "DE01622"},
                                 {"Quick Cleaning Timeout", "DE01623"},
                                 {"Quick Cleaning Turntable Speed", "DE01624"},
                                 {"Quick Cleaning Policy", "DE01625"},
                                 {"Accurate Cleaning Policy", "DE01626"},
                                 {"Accurate Cleaning Duration", "DE01627"},
                                 {"Accurate Cleaning Turntable Speed", "DE01628"},
                                 {"Brush 2 Position", "DE02842", Optional},
                             }};

constexpr char configuredRow[] = "1,9,300,1,45,35,10,165,90,55,14";

FW_Brush configuredBrush(bool enabled)
{
    FW_Brush brush;
    brush.setEnabled(enabled);
    brush.setPosition(9);
    brush.setSelfCleaningTime(300);
    brush.setTimeout(45, 2);
    brush.setTurntableSpeed(35);
    brush.setScheduleMask(10);
    return brush;
}

FW_Brush2 configuredSecondBrush(bool enabled)
{
    FW_Brush2 brush;
    brush.setEnabled(enabled);
    brush.setPosition(14);
    return brush;
}

/** Its policy is 5 + 16 * 2 + 64 * 2. */
FW_CleaningMotor configuredMotor()
{
    FW_CleaningMotor motor;
    motor.setScheduleMask(5);
    motor.setTarget(2);
    motor.setProcess(2);
    motor.setDuration(90);
    motor.setTurntableSpeed(55);
    return motor;
}

FW_Dispenser configuredMachine(bool enabled)
{
    FW_Dispenser machine = dispenserOf({1, 2});
    machine.setDevice(configuredBrush(enabled));
    machine.setDevice(configuredSecondBrush(enabled));
    machine.setCleaningMotor(configuredMotor());
    return machine;
}

QString text(const char *row)
{
    return QString::fromLatin1(row);
}

} // namespace

TEST(PUL_cdata, readsTheFieldsOfItsTable)
{
    expectTable<PUL_cdata>(structure);
}

TEST(PUL_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "const FW_Machine*",
                          [](const FW_Machine *machine) { PUL_cdata row(machine); });
    expectDispenserWantedToApply<PUL_cdata>(structure);
}

TEST(PUL_cdata, isWrittenFromBrushesAndCleaningMotor)
{
    const FW_Dispenser enabled = configuredMachine(true);
    EXPECT_EQ(PUL_cdata(&enabled).configurationParamsStr(), text(configuredRow));
    const FW_Dispenser disabled = configuredMachine(false);
    EXPECT_EQ(PUL_cdata(&disabled).configurationParamsStr(),
              QStringLiteral("2,9,300,1,45,35,10,165,90,55,14"));
}

TEST(PUL_cdata, isWrittenFromAMachineWithoutAny)
{
    const FW_Dispenser machine = dispenserOf({1});
    EXPECT_EQ(PUL_cdata(&machine).configurationParamsStr(), QStringLiteral("0,0,15,1,60,50,4,0,0,50,0"));
}

TEST(PUL_cdata, isEnabledByTheFirstBrushAlone)
{
    FW_Dispenser machine = dispenserOf({1});
    machine.setDevice(configuredSecondBrush(true));
    EXPECT_EQ(PUL_cdata(&machine).configurationParamsStr(), QStringLiteral("0,0,15,1,60,50,4,0,0,50,14"));
    machine.setDevice(configuredBrush(true));
    machine.setDevice(configuredSecondBrush(false));
    EXPECT_EQ(PUL_cdata(&machine).configurationParamsStr(), QStringLiteral("1,9,300,1,45,35,10,0,0,50,14"));
}

TEST(PUL_cdata, takesTheFirstCleaningMotor)
{
    FW_Dispenser machine = dispenserOf({1, 2});
    machine.getCircuitById(2)->setCleaningMotor(configuredMotor());
    EXPECT_EQ(PUL_cdata(&machine).parameters().mid(6, 3), (QList<int>{165, 90, 55}));
    FW_CleaningMotor first = configuredMotor();
    first.setScheduleMask(1);
    first.setDuration(20);
    first.setTurntableSpeed(60);
    machine.getCircuitById(1)->setCleaningMotor(first);
    EXPECT_EQ(PUL_cdata(&machine).parameters().mid(6, 3), (QList<int>{161, 20, 60}));
}

TEST(PUL_cdata, writesADisabledQuickCleaningAsTwoAndReadsItAsEnabled)
{
    FW_Dispenser machine = configuredMachine(true);
    FW_Brush brush = configuredBrush(true);
    brush.setCleaningEnabled(false);
    machine.setDevice(brush);
    const PUL_cdata row(&machine);
    EXPECT_EQ(row.configurationParamsStr(), QStringLiteral("1,9,300,2,45,35,10,165,90,55,14"));
    EXPECT_FALSE(row.cleaning().brush.isCleaningEnabled());
    EXPECT_TRUE(sentAndReceived(row).cleaning().brush.isCleaningEnabled());
    EXPECT_FALSE(PUL_cdata(text("1,9,300,0,45,35,10,165,90,55,14")).cleaning().brush.isCleaningEnabled());
}

TEST(PUL_cdata, tellsOfNoQuickCleaningThatTheModelDoesNotHave)
{
    FW_Dispenser machine = configuredMachine(true);
    machine.setModel(MachineModel::GenericMixer);
    EXPECT_EQ(PUL_cdata(&machine).configurationParamsStr(),
              QStringLiteral("1,9,300,0,45,35,10,165,90,55,14"));
    machine.setModel(MachineModel::Rotan);
    EXPECT_EQ(PUL_cdata(&machine).configurationParamsStr(), text(configuredRow));
}

TEST(PUL_cdata, readsEveryValue)
{
    const PUL_cdata row(text(configuredRow));
    const CleaningConf &cleaning = row.cleaning();
    EXPECT_EQ(cleaning.brush.position(), 9);
    EXPECT_EQ(cleaning.brush.selfCleaningTime(), 300);
    EXPECT_TRUE(cleaning.brush.isCleaningEnabled());
    EXPECT_EQ(cleaning.brush.timeout(2), 45);
    EXPECT_EQ(cleaning.brush.timeout(1), 2700);
    EXPECT_EQ(cleaning.brush.turntableSpeed(), 35);
    EXPECT_EQ(cleaning.brush.scheduleMask(), 10);
    EXPECT_EQ(cleaning.accuratePolicy, 165);
    EXPECT_EQ(cleaning.accurateDuration, 90);
    EXPECT_EQ(cleaning.accurateTurntableSpeed, 55);
    EXPECT_EQ(cleaning.secondBrush.position(), 14);
    EXPECT_EQ(PUL_cdata(text("1,9,300,1,45,35,10,165,90,55")).cleaning().secondBrush.position(), 0);
}

TEST(PUL_cdata, clearsToTheDefaults)
{
    PUL_cdata row(text(configuredRow));
    row.clear();
    EXPECT_TRUE(row.cleaning().brush == FW_Brush());
    EXPECT_TRUE(row.cleaning().secondBrush == FW_Brush2());
    EXPECT_EQ(row.cleaning().accuratePolicy, 73); // schedule 9, process 1
    EXPECT_EQ(row.cleaning().accurateDuration, 30);
    EXPECT_EQ(row.cleaning().accurateTurntableSpeed, 50);
    EXPECT_EQ(PUL_cdata().cleaning().accuratePolicy, 73);
}

TEST(PUL_cdata, isGivenToAMachineWithoutAny)
{
    const FW_Dispenser source = configuredMachine(true);
    FW_Dispenser target = dispenserOf({1, 2});
    EXPECT_TRUE(applied(sentAndReceived(PUL_cdata(&source)), target));
    EXPECT_TRUE(target == source);
    EXPECT_TRUE(applied(PUL_cdata(text("2,9,300,1,45,35,10,165,90,55,14")), target));
    EXPECT_TRUE(target == configuredMachine(false));
}

TEST(PUL_cdata, leavesASecondBrushWithoutAPosition)
{
    FW_Dispenser target = configuredMachine(true);
    EXPECT_TRUE(applied(PUL_cdata(text("2,9,300,1,45,35,10,165,90,55,0")), target));
    EXPECT_TRUE(*target.getDevice(firstBrush) == configuredBrush(false));
    EXPECT_TRUE(*target.getDevice(secondBrush) == configuredSecondBrush(true));
    EXPECT_TRUE(applied(PUL_cdata(text("2,9,300,1,45,35,10,165,90,55")), target));
    EXPECT_TRUE(*target.getDevice(secondBrush) == configuredSecondBrush(true));
    FW_Dispenser without = dispenserOf({1});
    EXPECT_TRUE(applied(PUL_cdata(text("1,9,300,1,45,35,10,165,90,55,0")), without));
    EXPECT_FALSE(without.hasDevice(secondBrush));
}

TEST(PUL_cdata, removesCleaningMotorsForNoDuration)
{
    FW_Dispenser target = configuredMachine(true);
    EXPECT_TRUE(applied(PUL_cdata(text("1,9,300,1,45,35,10,999,0,55,14")), target));
    EXPECT_EQ(target.cleaningMotors().size(), 0);
}

TEST(PUL_cdata, isNotGivenWithAPolicyThatIsNone)
{
    FW_Dispenser target = dispenserOf({1});
    EXPECT_FALSE(applied(PUL_cdata(text("1,9,300,1,45,35,10,256,90,55,14")), target));
    EXPECT_FALSE(applied(PUL_cdata(text("1,9,300,1,45,35,10,-1,90,55,14")), target));
    EXPECT_EQ(target.cleaningMotors().size(), 0);
    EXPECT_TRUE(*target.getDevice(firstBrush) == configuredBrush(true)); // before the policy was looked at
    EXPECT_TRUE(applied(PUL_cdata(text("1,9,300,1,45,35,10,255,90,55,14")), target));
}

TEST(PUL_cdata, changesTheCleaningMotorsThatAreThere)
{
    FW_Dispenser target = dispenserOf({1, 2, 3});
    FW_CleaningMotor motor;
    motor.setBrushType(3);
    motor.setMotorId(4);
    target.getCircuitById(1)->setCleaningMotor(motor);
    target.getCircuitById(1)->addCleaningMotor(motor);
    target.getCircuitById(3)->setCleaningMotor(motor);
    EXPECT_TRUE(applied(PUL_cdata(text(configuredRow)), target));
    FW_CleaningMotor expected = configuredMotor();
    expected.setBrushType(3);
    expected.setMotorId(4);
    ASSERT_EQ(target.cleaningMotors().size(), 3);
    int form = 0;
    for (const FW_CleaningMotor *changed : target.cleaningMotors()) {
        SCOPED_TRACE(++form);
        EXPECT_TRUE(*changed == expected);
    }
    EXPECT_EQ(target.getCircuitById(2)->firstCleaningMotor(), nullptr);
}

TEST(PUL_cdata, changesNothingWhenAbsent)
{
    FW_Dispenser target = configuredMachine(true);
    EXPECT_TRUE(applied(PUL_cdata(text("0,1,2,3,4,5,6,7,0,9,10")), target));
    EXPECT_TRUE(target == configuredMachine(true));
}

TEST(PUL_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(PUL_cdata(text(configuredRow)).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
