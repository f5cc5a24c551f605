// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/simulatedfirmware.h"

#include <QuvFramework/fw_mixer.h>

#include <gtest/gtest.h>

namespace {

using quv::SimulatedFirmware;

std::string told(SimulatedFirmware &firmware, const char *code, int module = 0,
                 const QList<int> &numbers = {})
{
    return firmware.execute(QLatin1String(code), module, numbers).tokens.join(' ').toStdString();
}

SimulatedFirmware firmwareOf(const FW_Machine &machine, const FW_Version &version = {})
{
    quv::SimulatedConfiguration configuration;
    configuration.version = version;
    return SimulatedFirmware(machine, 1, SimulatedFirmware::steadyClock(), configuration);
}

FW_Dispenser withACircuitAt(int position)
{
    FW_Canister canister(1);
    canister.addCircuit(FW_Circuit(1, position));
    FW_Dispenser dispenser;
    dispenser.addCanister(canister);
    return dispenser;
}

TEST(Versions, theVersionIsSixNumbers)
{
    SimulatedFirmware firmware = firmwareOf(withACircuitAt(7), {72, 1, 2, 3, 4, 20});
    EXPECT_EQ(told(firmware, "000F"), "6 48 1 2 3 4 14");
    EXPECT_EQ(told(firmware, "000F", 7), "6 48 1 2 3 4 14"); // the board of a circuit
    EXPECT_EQ(told(firmware, "000F", 8), "6 10 0 0 0 0 0");
    EXPECT_EQ(told(firmware, "000F", 0, {0}), "6 20 0 0 0 0 0");
}

TEST(Versions, aFirmwareWhoseVersionNobodyHasToldHasTheUsualOneOfItsKind)
{
    SimulatedFirmware dispenser = firmwareOf(FW_Dispenser());
    EXPECT_EQ(told(dispenser, "000F"), "6 3F 1 1 0 0 28");
    SimulatedFirmware mixer = firmwareOf(FW_Mixer());
    EXPECT_EQ(told(mixer, "000F"), "6 64 1 1 0 0 1");
}

/// The groups of the table, each as text; the first token counts all, the second the groups.
QStringList table(const std::string &reply, int size)
{
    const QStringList tokens = QString::fromStdString(reply).split(QLatin1Char(' '));
    QStringList groups;
    for (int i = 2; i < tokens.size(); i += size)
        groups.append(QStringList(tokens.mid(i, size)).join(QLatin1Char(' ')));
    EXPECT_EQ(tokens.value(0).toInt(nullptr, 16), tokens.size() - 1);
    EXPECT_EQ(tokens.value(1).toInt(nullptr, 16), groups.size());
    return groups;
}

TEST(Versions, theTableTellsCodeAndWhatKeepsTheMachineBusy)
{
    SimulatedFirmware firmware = firmwareOf(FW_Dispenser());
    const QStringList plain = table(told(firmware, "0014"), 3);
    EXPECT_TRUE(plain.contains(QStringLiteral("6 0 1"))) << plain.join('|').toStdString();  // 0006
    EXPECT_TRUE(plain.contains(QStringLiteral("17 0 2"))) << plain.join('|').toStdString(); // 0017
    EXPECT_TRUE(plain.contains(QStringLiteral("F 0 1")));
    EXPECT_FALSE(plain.contains(QStringLiteral("33 0 1"))); // a mixer's
    EXPECT_EQ(table(told(firmware, "0014", 0, {0}), 3), plain);
    const QStringList withExecution = table(told(firmware, "0014", 0, {1}), 4);
    EXPECT_EQ(withExecution.size(), plain.size());
    EXPECT_TRUE(withExecution.contains(QStringLiteral("17 0 2 1")));
    EXPECT_EQ(told(firmware, "0014", 0, {2}), "6 20 0 0 0 0 0");
    EXPECT_EQ(told(firmware, "0014", 0, {1, 1}), "6 20 0 0 0 0 0");
}

TEST(Versions, anOlderFirmwareTellsNothingOfExecution)
{
    for (const FW_Version &version :
         {FW_Version(63, 1, 1, 0, 0, 38), FW_Version(70, 1, 1, 0, 0, 1), FW_Version(68, 1, 1, 0, 0, 99)}) {
        SimulatedFirmware firmware = firmwareOf(FW_Dispenser(), version);
        EXPECT_TRUE(table(told(firmware, "0014", 0, {1}), 3).contains(QStringLiteral("17 0 2")))
            << version.toString().toStdString();
    }
    for (const FW_Version &version : {FW_Version(63, 1, 1, 0, 0, 39), FW_Version(70, 1, 1, 0, 0, 2),
                                      FW_Version(72, 1, 1, 0, 0, 0), FW_Version(78, 1, 1, 0, 0, 0)}) {
        SimulatedFirmware firmware = firmwareOf(FW_Dispenser(), version);
        EXPECT_TRUE(table(told(firmware, "0014", 0, {1}), 4).contains(QStringLiteral("17 0 2 1")))
            << version.toString().toStdString();
    }
}

TEST(Versions, anIdentifierIsThePlaceInTheTable)
{
    SimulatedFirmware firmware = firmwareOf(FW_Dispenser());
    const int place = table(told(firmware, "0014"), 3).indexOf(QStringLiteral("17 0 2")) + 1;
    EXPECT_GT(place, 0);
    EXPECT_EQ(told(firmware, "0068", 0, {0x17}), "2 1 " + QString::number(place, 16).toUpper().toStdString());
    EXPECT_EQ(told(firmware, "0068", 0, {0x99}), "1 0");
    EXPECT_EQ(told(firmware, "0068"), "6 20 0 0 0 0 0");
    EXPECT_EQ(told(firmware, "0068", 0, {65536}), "6 20 0 0 0 0 0");
}

} // namespace
