// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/dispinfocmd.h"

#include <QuvFramework/fw_version.h>

#include <gtest/gtest.h>

namespace {

TEST(DispInfoCmd, knowsTheTypes)
{
    for (const int type : {1, 2, 3, 4, 5, 6})
        EXPECT_TRUE(DispInfoCmd::checkDispInfoType(type)) << type;
    for (const int type : {-1, 0, 7, 245})
        EXPECT_FALSE(DispInfoCmd::checkDispInfoType(type)) << type;
    EXPECT_EQ(DispInfoCmd::keyCodeType, 6);
}

TEST(DispInfoCmd, findsEachTypeOnEachFirmwareThatIsKnown)
{
    for (const FW_Version &version :
         {FW_Version(63, 0), FW_Version(63, 99), FW_Version(1, 1), FW_Version(78, 0)}) {
        for (const int type : {1, 2, 3, 4, 5, 6})
            EXPECT_TRUE(DispInfoCmd::isSupportedDispInfoType(type, version)) << type;
        for (const int type : {-1, 0, 7})
            EXPECT_FALSE(DispInfoCmd::isSupportedDispInfoType(type, version)) << type;
    }
    for (const int type : {0, 1, 6})
        EXPECT_FALSE(DispInfoCmd::isSupportedDispInfoType(type, FW_Version())) << type;
}

} // namespace
