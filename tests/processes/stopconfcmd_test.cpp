// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stopconfcmd.h"

#include "processes/stoptesting.h"

namespace {

using namespace testing_processes;

TEST(StopConfCmd, keepsTheCommandContract)
{
    CommandFacts facts = stopFacts<StopConfCmd>("StopConfCmd");
    facts.protoType = 2;
    facts.answers = confAnswers();
    expectCommandContract(facts);
}

TEST(StopConfCmd, isRefusedByNoFirmware)
{
    for (const int family : {0, 1, 63, 67, 68, 69, 70, 71, 72, 99})
        for (const int revision : {0, 1, 38, 99})
            EXPECT_TRUE(StopConfCmd().isSupportedCommand(FW_Version(family, revision)));
    EXPECT_TRUE(StopConfCmd().isSupportedCommand(FW_Version()));
}

} // namespace
