// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/mot_cdata.h"

#include "sharedparttesting.h"

using namespace testing_configuration;

namespace {

const Structure structure = {
    19,
    "MOT_cdata",
    "DE01930",
    "Invalid data",
    "DE02809",
    "DE01981",
    "DE01983",
    {
        {"Motor ID", "DE01964"},
        {"Motor rated current", "DE01965"},
        {"Inverter rated current", "DE01966"},
        {"Inverter overload multiplier", "DE01967"},
        {"Overload motor control enable (DSC)", "DE01968", Mandatory, "Overload motor control enable"},
        {"Motor current multiplier", "DE01969"},
        {"Motor overload timeout", "DE01970"},
        {"Motor overload step", "DE01971"},
        {"Motor max speed", "DE01972"},
        {"Y1 coordinate", "DE01973"},
        {"Y2 coordinate", "DE01974"},
        {"X1 coordinate", "DE01975"},
        {"X2 coordinate", "DE01976"},
        {"Motor speed error tolerance", "DE01977"},
        {"Encoder pulses", "DE01978"},
        {"Encoder channels", "DE01979"},
        {"Encoder step fraction", "DE01980"},
        {"Inverter current max value", "DE02947", Optional},
        {"Inverter voltage max value", "DE02948", Optional},
    }};

constexpr char configuredRow[] = "1,7,329,455,129,1,158,45,10,1450,123,456,78,605,12,2048,3,8,150,4000";
constexpr char defaultsRow[] = "250,400,150,0,125,30,10,1400,100,500,50,500,10,1000,2,4,100,2300";

FW_SingleTransmission configured()
{
    FW_SingleTransmission transmission(7);
    transmission.motorRatedCurrent = 3.29; // times 100 a little below 329
    transmission.inverterRatedCurrent = 4.55;
    transmission.inverterOverloadMultiplier = 1.29;
    transmission.motorCurrentMultiplier = 1.58;
    transmission.motorOverloadTimeout = 45;
    transmission.motorMaxSpeed = 1450;
    transmission.y1 = 12.3;
    transmission.y2 = 45.6;
    transmission.x1 = 7.8;
    transmission.x2 = 60.5;
    transmission.motorSpeedErrorTolerance = 12;
    transmission.encoderPulses = 2048;
    transmission.encoderChannels = 3;
    transmission.encoderStepFraction = 8;
    transmission.inverterCurrentMax = 15;
    transmission.inverterVoltageMax = 400;
    return transmission;
}

/** Circuits 1 and 3 share transmission 7, circuit 2 has transmission 8. */
FW_Dispenser machineWith(const FW_SingleTransmission &transmission, bool smartSpeed)
{
    FW_Dispenser machine = dispenserOf({1, 2, 3});
    for (const int circuit : {1, 3}) {
        motorOf(machine, circuit).setSingleTransmission(transmission);
        motorOf(machine, circuit).setSmartSpeedReduction(smartSpeed);
    }
    motorOf(machine, 2).setSingleTransmission(FW_SingleTransmission(8));
    return machine;
}

QString text(const char *row)
{
    return QString::fromLatin1(row);
}

} // namespace

TEST(MOT_cdata, readsTheFieldsOfItsTable)
{
    expectTable<MOT_cdata>(structure);
}

TEST(MOT_cdata, wantsADispenser)
{
    expectDispenserWanted(structure, "int, const FW_Machine*",
                          [](const FW_Machine *machine) { MOT_cdata(7, machine); });
    expectDispenserWantedToApply<MOT_cdata>(structure);
}

TEST(MOT_cdata, refusesNoReferenceBeforeTheMachine)
{
    const FW_Dispenser machine = machineWith(configured(), true);
    const FW_Mixer mixer;
    for (const FW_Machine *any :
         {static_cast<const FW_Machine *>(&machine), static_cast<const FW_Machine *>(&mixer),
          static_cast<const FW_Machine *>(nullptr)}) {
        SCOPED_TRACE(any ? "with a machine" : "without a machine");
        expectRefusal("DE01943", "Invalid single transmission configuration reference",
                      "MOT_cdata::MOT_cdata(int, const FW_Machine*)", [&] { MOT_cdata(-1, any); });
    }
}

TEST(MOT_cdata, isWrittenFromTheTransmission)
{
    const FW_Dispenser machine = machineWith(configured(), true);
    EXPECT_EQ(MOT_cdata(7, &machine).configurationParamsStr(), text(configuredRow));
    EXPECT_EQ(MOT_cdata(8, &machine).configurationParamsStr(), QStringLiteral("1,8,") + text(defaultsRow));
    EXPECT_EQ(MOT_cdata(9, &machine).configurationParamsStr(), QStringLiteral("0,9,") + text(defaultsRow));
    EXPECT_EQ(MOT_cdata(0, &machine).configurationParamsStr(), QStringLiteral("0,0,") + text(defaultsRow));
}

TEST(MOT_cdata, asksTheFirstMotorForSmartSpeed)
{
    FW_Dispenser machine = machineWith(configured(), false);
    motorOf(machine, 3).setSmartSpeedReduction(true);
    EXPECT_FALSE(MOT_cdata(7, &machine).smartSpeed());
    EXPECT_EQ(MOT_cdata(7, &machine).parameters().at(4), 0);
    motorOf(machine, 1).setSmartSpeedReduction(true);
    motorOf(machine, 3).setSmartSpeedReduction(false);
    EXPECT_TRUE(MOT_cdata(7, &machine).smartSpeed());
    EXPECT_EQ(MOT_cdata(7, &machine).parameters().at(4), 1);
}

TEST(MOT_cdata, cutsOffWhatTheRowHasNoDigitFor)
{
    FW_SingleTransmission transmission = configured();
    transmission.motorRatedCurrent = 3.299;
    transmission.motorOverloadTimeout = 45.9;
    transmission.y1 = 12.39;
    transmission.inverterVoltageMax = 2000000000;
    const FW_Dispenser machine = machineWith(transmission, false);
    const QList<int> row = MOT_cdata(7, &machine).parameters();
    EXPECT_EQ(row.at(1), 329);
    EXPECT_EQ(row.at(6), 45);
    EXPECT_EQ(row.at(9), 123);
    EXPECT_EQ(row.at(18), 2147483647);
    EXPECT_EQ(
        MOT_cdata(text("1,7,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,159,4009")).transmission().inverterCurrentMax,
        15);
    EXPECT_EQ(
        MOT_cdata(text("1,7,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,159,4009")).transmission().inverterVoltageMax,
        400);
}

TEST(MOT_cdata, readsEveryValue)
{
    const MOT_cdata row(text(configuredRow));
    EXPECT_EQ(row.reference(), 7);
    EXPECT_TRUE(row.smartSpeed());
    const FW_SingleTransmission &transmission = row.transmission();
    EXPECT_EQ(transmission.motorRatedCurrent, 3.29);
    EXPECT_EQ(transmission.inverterRatedCurrent, 4.55);
    EXPECT_EQ(transmission.inverterOverloadMultiplier, 1.29);
    EXPECT_EQ(transmission.motorCurrentMultiplier, 1.58);
    EXPECT_EQ(transmission.motorOverloadTimeout, 45.0);
    EXPECT_EQ(transmission.motorMaxSpeed, 1450.0);
    EXPECT_EQ(transmission.y1, 12.3);
    EXPECT_EQ(transmission.y2, 45.6);
    EXPECT_EQ(transmission.x1, 7.8);
    EXPECT_EQ(transmission.x2, 60.5);
    EXPECT_EQ(transmission.motorSpeedErrorTolerance, 12.0);
    EXPECT_EQ(transmission.encoderPulses, 2048.0);
    EXPECT_EQ(transmission.encoderChannels, 3.0);
    EXPECT_EQ(transmission.encoderStepFraction, 8.0);
    EXPECT_EQ(transmission.inverterCurrentMax, 15);
    EXPECT_EQ(transmission.inverterVoltageMax, 400);
}

TEST(MOT_cdata, hasSmartSpeedForAnythingButZero)
{
    EXPECT_FALSE(MOT_cdata(text("1,7,1,1,1,0,1,1,1,1,1,1,1,1,1,1,1,1")).smartSpeed());
    EXPECT_TRUE(MOT_cdata(text("1,7,1,1,1,2,1,1,1,1,1,1,1,1,1,1,1,1")).smartSpeed());
    EXPECT_TRUE(MOT_cdata(text("1,7,1,1,1,-1,1,1,1,1,1,1,1,1,1,1,1,1")).smartSpeed());
}

TEST(MOT_cdata, keepsDefaultsOfFieldsThatTheFirmwareDoesNotHave)
{
    const MOT_cdata row(numberedTokens(19), 19);
    EXPECT_EQ(row.parameters().size(), 18);
    EXPECT_EQ(row.transmission().inverterCurrentMax, 2); // of 28
    EXPECT_EQ(row.transmission().inverterVoltageMax, 230);
    EXPECT_EQ(MOT_cdata(numberedTokens(19), 18).transmission().inverterCurrentMax, 10);
}

TEST(MOT_cdata, keepsTheOverloadStepInARowOnly)
{
    const MOT_cdata received(text("1,7,329,455,129,1,158,45,77,1450,123,456,78,605,12,2048,3,8,150,4000"));
    EXPECT_EQ(received.parameters().at(7), 77);
    EXPECT_EQ(sentAndReceived(received).parameters().at(7), 77);
    FW_Dispenser machine = machineWith(FW_SingleTransmission(7), false);
    EXPECT_TRUE(applied(received, machine));
    EXPECT_EQ(MOT_cdata(7, &machine).configurationParamsStr(), text(configuredRow));
}

TEST(MOT_cdata, clearsToTheDefaults)
{
    MOT_cdata row(text(configuredRow));
    row.clear();
    EXPECT_EQ(row.reference(), 0);
    EXPECT_FALSE(row.smartSpeed());
    EXPECT_TRUE(row.transmission() == FW_SingleTransmission());
}

TEST(MOT_cdata, isGivenToAllMotorsOfTheReference)
{
    const FW_Dispenser source = machineWith(configured(), true);
    FW_Dispenser target = machineWith(FW_SingleTransmission(7), false);
    EXPECT_TRUE(applied(sentAndReceived(MOT_cdata(7, &source)), target));
    EXPECT_TRUE(target == source);
    FW_Dispenser unchanged = target;
    EXPECT_FALSE(motorOf(unchanged, 2).hasSmartSpeedReduction());
    EXPECT_TRUE(applied(
        MOT_cdata(text("2,7,329,455,129,0,158,45,10,1450,123,456,78,605,12,2048,3,8,150,4000")), target));
    EXPECT_TRUE(target == machineWith(configured(), false));
}

TEST(MOT_cdata, isNotGivenWithoutAMotorOfTheReference)
{
    FW_Dispenser target = machineWith(configured(), true);
    EXPECT_FALSE(applied(MOT_cdata(text("1,9,1,1,1,0,1,1,1,1,1,1,1,1,1,1,1,1")), target));
    EXPECT_TRUE(applied(MOT_cdata(text("0,7,1,1,1,0,1,1,1,1,1,1,1,1,1,1,1,1")), target));
    EXPECT_TRUE(target == machineWith(configured(), true));
}

TEST(MOT_cdata, givesItsXmlRpcForm)
{
    EXPECT_EQ(dumped(MOT_cdata(text(configuredRow)).toXmlRpcValue()), R"({"cmd_enabled": 1})");
}
