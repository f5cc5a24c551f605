// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stopserialcmd.h"

#include "processes/stoptesting.h"

namespace {

using namespace testing_processes;

TEST(StopSerialCmd, keepsTheCommandContract)
{
    CommandFacts facts = stopFacts<StopSerialCmd>("StopSerialCmd");
    facts.protoType = 1;
    facts.defaults.sends({0});
    for (Request &request : facts.requests)
        request.sends({request.arguments.value(0, 0).toInt()});
    facts.answers = serialAnswers();
    expectCommandContract(facts);
}

TEST(StopSerialCmd, isRefusedByNoFirmware)
{
    for (const int family : {0, 1, 63, 67, 68, 69, 70, 71, 72, 99})
        for (const int revision : {0, 1, 38, 99})
            EXPECT_TRUE(StopSerialCmd().isSupportedCommand(FW_Version(family, revision)));
    EXPECT_TRUE(StopSerialCmd().isSupportedCommand(FW_Version()));
}

} // namespace
