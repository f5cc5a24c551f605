// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/stopcmd.h"

#include <QuvFramework/fw_version.h>

#include <gtest/gtest.h>

namespace {

TEST(StopCmd, knowsItsTypes)
{
    for (const int type : {0, 1, 2, 3})
        EXPECT_TRUE(StopCmd::checkFwStopType(type)) << type;
    for (const int type : {-1, 4})
        EXPECT_FALSE(StopCmd::checkFwStopType(type)) << type;
    for (const int type : {0, 1, 2})
        EXPECT_TRUE(StopCmd::checkSwStopType(type)) << type;
    for (const int type : {-1, 3})
        EXPECT_FALSE(StopCmd::checkSwStopType(type)) << type;
}

TEST(StopCmd, isSoftOnNoFirmwareYet)
{
    for (const int family : {0, 1, 63, 67, 68, 69, 70, 71, 72, 99})
        for (const int revision : {0, 1, 38, 99})
            EXPECT_FALSE(StopCmd::isSoftStopSupported(FW_Version(family, revision)));
    EXPECT_FALSE(StopCmd::isSoftStopSupported(FW_Version()));
}

} // namespace
