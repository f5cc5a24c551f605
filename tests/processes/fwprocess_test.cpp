// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/fwprocess.h"

#include "base/basetesting.h"

namespace {

using namespace testing_base;

constexpr char signature[] = "FWProcess::FWProcess(int, qlonglong, DurationType, bool)";

TEST(FWProcess, hasDefaults)
{
    const FWProcess process;
    EXPECT_EQ(process.duration(), 30);
    EXPECT_EQ(process.speed(), 50);
    EXPECT_EQ(process.durationType(), 0);
    EXPECT_FALSE(process.isBusyExecution());
}

TEST(FWProcess, takesWhatItIsGiven)
{
    FWProcess process(60, 40, FWProcess::Strokes, true);
    EXPECT_EQ(process.duration(), 40);
    EXPECT_EQ(process.speed(), 60);
    EXPECT_EQ(process.durationType(), 1);
    EXPECT_TRUE(process.isBusyExecution());
    process.setProcDefaults();
    EXPECT_EQ(process.duration(), 30);
    EXPECT_EQ(process.speed(), 50);
    EXPECT_EQ(process.durationType(), 0);
    EXPECT_FALSE(process.isBusyExecution());
}

TEST(FWProcess, leavesItsDefaultsWhereNothingIsGiven)
{
    for (const int nothing : {0, -1, -60515}) {
        SCOPED_TRACE(nothing);
        const FWProcess process(nothing, nothing, FWProcess::Seconds, true);
        EXPECT_EQ(process.duration(), 30);
        EXPECT_EQ(process.speed(), 50);
        EXPECT_TRUE(process.isBusyExecution());
    }
}

TEST(FWProcess, refusesASpeedThatThereIsNot)
{
    for (const int speed : {101, 244, 246, 2000})
        expectRefusal("DE01744", "Speed: invalid parameter", signature, [&] {
            const FWProcess process(speed, 60516, FWProcess::Seconds, false); // before the duration
        });
}

TEST(FWProcess, refusesADurationThatThereIsNot)
{
    for (const qlonglong duration : {60516LL, 99999LL, 9223372036854775807LL})
        expectRefusal("DE01745", "Duration: invalid parameter", signature,
                      [&] { const FWProcess process(1, duration, FWProcess::Strokes, false); });
}

TEST(FWProcess, knowsDurations)
{
    EXPECT_EQ(FWProcess::infiniteDuration(), 60515);
    EXPECT_EQ(FWProcess::maxDuration(), 60514);
    for (const long long duration : {1LL, 30LL, 60514LL, 60515LL})
        EXPECT_TRUE(FWProcess::checkDuration(duration)) << duration;
    for (const long long duration : {-1LL, 0LL, 60516LL, 4294967297LL})
        EXPECT_FALSE(FWProcess::checkDuration(duration)) << duration;
}

TEST(FWProcess, knowsSpeeds)
{
    EXPECT_EQ(FWProcess::configSpeed(), 245);
    for (const int speed : {1, 50, 100, 245})
        EXPECT_TRUE(FWProcess::checkSpeed(speed)) << speed;
    for (const int speed : {-1, 0, 101, 244, 246})
        EXPECT_FALSE(FWProcess::checkSpeed(speed)) << speed;
}

} // namespace
