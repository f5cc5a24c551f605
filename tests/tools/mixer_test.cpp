// SPDX-License-Identifier: LGPL-3.0-or-later
#include "simulatedparts.h"

#include <QuvFramework/fw_mixer.h>

#include <gtest/gtest.h>

namespace {

//  length, not read, status, masks 1 to 6, cycle, time left in two digits, speed, force, height in two digits
const char *const RestingMixer = "F 0 1 0 0 0 0 0 12 0 0 0 0 0 9A 1"; // 400 mm
const char *const MixerRefuses = "refused 6 0 8 0 0 0 0";
const char *const MixerMisreads = "refused 6 20 0 0 0 0 0";

/// Ten seconds at speed 100 and force 30, then the firmware's own time and speed at force 40.
const QList<int> TwoCycles{0, 2, 5, 1, 100, 30, 10, 0, 2, 245, 40, 245, 245};

TEST(SimulatedMixer, clampsMixesItsCyclesInTurnAndReleases)
{
    SimulatedParts mixer{FW_Mixer()};
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
    EXPECT_EQ(mixer.ask("0031", TwoCycles), "0");
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 C 0 0 20 20 0 0 49 0 0 0 9A 1"); // the plate goes down; 73 s are left
    mixer.now += 750;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 C 0 0 20 20 0 0 49 0 0 0 4F 1"); // 325 mm
    mixer.now += 750;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 14 2 0 8 21 0 1 48 0 64 1E 4 1"); // the can is 250 mm high
    mixer.now += 9999;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 14 2 0 8 21 0 1 3E 0 64 1E 4 1");
    mixer.now += 1;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 14 2 0 8 21 0 2 3E 0 78 28 4 1");
    mixer.now += 60000;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 C 0 0 40 20 0 0 2 0 0 0 4 1"); // the plate goes up
    mixer.now += 1499;
    EXPECT_EQ(mixer.ask("0033").substr(0, 22), "F 0 1 C 0 0 40 20 0 0 ");
    mixer.now += 1;
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
}

TEST(SimulatedMixer, aFasterOneCountsItsOwnSeconds)
{
    SimulatedParts mixer(FW_Mixer(), 10);
    mixer.ask("0031", TwoCycles);
    mixer.now += 150;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 14 2 0 8 21 0 1 48 0 64 1E 4 1");
    mixer.now += 7150;
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
}

TEST(SimulatedMixer, longTimesTakeTwoDigits)
{
    SimulatedParts mixer{FW_Mixer()};
    mixer.ask("0031", {0, 1, 5, 0, 50, 20, 54, 1}); // 300 s
    mixer.now += 1500;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 14 2 0 8 21 0 1 38 1 32 14 4 1"); // 302
}

TEST(SimulatedMixer, nothingElseBeginsWhileItMixes)
{
    SimulatedParts mixer{FW_Mixer()};
    mixer.ask("0031", TwoCycles);
    EXPECT_EQ(mixer.ask("0031", TwoCycles), MixerRefuses);
    EXPECT_EQ(mixer.ask("0030", {0, 245, 245, 245, 0}), MixerRefuses);
    EXPECT_EQ(mixer.ask("0030", {0, 0, 245, 0}), MixerRefuses);
    mixer.now += 73000;
    EXPECT_EQ(mixer.ask("0030", {1, 245, 245, 245, 0}), "0");
    EXPECT_EQ(mixer.ask("0031", TwoCycles), MixerRefuses);
}

TEST(SimulatedMixer, stoppedInACycleItMustBeReset)
{
    SimulatedParts mixer{FW_Mixer()};
    mixer.ask("0031", TwoCycles);
    mixer.now += 5000;
    mixer.stop();
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 0 2 0 8 11 18 0 0 0 0 1E 4 1");
    EXPECT_EQ(mixer.ask("0031", TwoCycles), MixerRefuses);
    EXPECT_EQ(mixer.ask("0030", {0, 245, 245, 245, 0}), MixerRefuses);
    EXPECT_EQ(mixer.ask("0001"), "0");
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 48 2 0 40 0 18 0 6 0 0 0 4 1");
    EXPECT_EQ(mixer.ask("0031", TwoCycles), MixerRefuses);
    mixer.now += 6000;
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
    EXPECT_EQ(mixer.ask("0031", TwoCycles), "0");
}

TEST(SimulatedMixer, platesWithoutATimeLeaveAResetAlone)
{
    SimulatedParts mixer{FW_Mixer()};
    mixer.ask("0031", TwoCycles);
    mixer.now += 5000;
    mixer.stop();
    mixer.ask("0001");
    mixer.now += 3000;
    EXPECT_EQ(mixer.ask("0030", {0, 0, 245, 0}), MixerRefuses);
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 48 2 0 40 0 18 0 3 0 0 0 4F 1"); // 325 mm, on their way
    mixer.now += 3000;
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
}

TEST(SimulatedMixer, stoppedWhileItClampsItNeedsNoReset)
{
    SimulatedParts mixer{FW_Mixer()};
    mixer.ask("0031", TwoCycles);
    mixer.now += 750;
    mixer.stop();
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 0 1 0 0 10 12 0 0 0 0 0 4F 1");
    EXPECT_EQ(mixer.ask("0031", TwoCycles), "0");
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 C 0 0 20 20 0 0 49 0 0 0 4F 1"); // 72.25 s from here
    mixer.now += 750;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 14 2 0 8 21 0 1 48 0 64 1E 4 1");
}

TEST(SimulatedMixer, stoppedWhileItRestsItStaysAsItIs)
{
    SimulatedParts mixer{FW_Mixer()};
    mixer.stop();
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
}

TEST(SimulatedMixer, movesItsPlates)
{
    SimulatedParts mixer{FW_Mixer()};
    EXPECT_EQ(mixer.ask("0030", {1, 245, 245, 245, 0}), "0");
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 8 0 0 20 0 10 0 2 0 0 0 9A 1");
    mixer.now += 1500;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 0 0 0 8 1 12 0 0 0 0 32 4 1"); // the can is held with force 50
    EXPECT_EQ(mixer.ask("0030", {0, 245, 245, 50, 0}), "0");           // at half of the speed
    mixer.now += 2999;
    EXPECT_EQ(mixer.ask("0033").substr(0, 22), "F 0 1 8 0 0 40 0 10 0 ");
    mixer.now += 1;
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
    mixer.ask("0030", {1, 245, 245, 245, 77});
    mixer.now += 1500;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 0 0 0 8 1 12 0 0 0 0 4D 4 1");
}

TEST(SimulatedMixer, movesItsPlatesForATime)
{
    SimulatedParts mixer{FW_Mixer()};
    EXPECT_EQ(mixer.ask("0030", {1, 232, 3, 245, 0}), "0"); // 970 ms
    mixer.now += 970;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 0 1 0 0 0 12 0 0 0 0 0 39 1"); // 303 mm
    EXPECT_EQ(mixer.ask("0030", {0, 200, 245, 0}), "0");               // a time of one digit
    mixer.now += 200;
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 0 1 0 0 0 12 0 0 0 0 0 4D 1"); // 323 mm
    EXPECT_EQ(mixer.ask("0030", {0, 245, 245, 245, 0}), "0");
    mixer.now += 270;
    EXPECT_EQ(mixer.ask("0030", {0, 0, 245, 0}), "0");                 // no time: they stand
    EXPECT_EQ(mixer.ask("0033"), "F 0 1 0 1 0 0 0 12 0 0 0 0 0 68 1"); // 350 mm
}

TEST(SimulatedMixer, refusesWhatItCannotRead)
{
    SimulatedParts mixer{FW_Mixer()};
    for (const QList<int> &wrong : {QList<int>{},
                                    {0, 0, 5},
                                    {1, 1, 5, 1, 100, 30, 10, 0},
                                    {0, 1, 4, 1, 100, 30, 10},
                                    {0, 2, 5, 1, 100, 30, 10, 0},
                                    {0, 1, 5, 1, 100, 30, 10, 0, 0},
                                    {0, 1, 5, 1, 100, 30, 246, 0}})
        EXPECT_EQ(mixer.ask("0031", wrong), MixerMisreads);
    for (const QList<int> &wrong : {QList<int>{},
                                    {2, 245, 245, 245, 0},
                                    {1, 245, 245, 0, 0},
                                    {1, 245, 245, 101, 0},
                                    {1, 245, 245},
                                    {1, 245, 245, 245, 0, 0}})
        EXPECT_EQ(mixer.ask("0030", wrong), MixerMisreads);
    EXPECT_EQ(mixer.ask("0033"), RestingMixer);
}

} // namespace
