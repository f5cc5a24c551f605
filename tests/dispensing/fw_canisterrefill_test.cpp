// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/fw_canisterrefill.h"

#include <gtest/gtest.h>

namespace {

TEST(FW_CanisterRefill, beginsWithNothing)
{
    const FW_CanisterRefill refill;
    EXPECT_EQ(refill.canisterID, 0);
    EXPECT_EQ(refill.previousQuantity, 0.0);
    EXPECT_EQ(refill.currentQuantity, 0.0);
}

TEST(FW_CanisterRefill, holdsCanisterBeforeAndAfter)
{
    const FW_CanisterRefill refill{101, 500.5, 750};
    EXPECT_EQ(refill.canisterID, 101);
    EXPECT_EQ(refill.previousQuantity, 500.5);
    EXPECT_EQ(refill.currentQuantity, 750.0);
}

TEST(FW_CanisterRefill, comparesAllFields)
{
    const FW_CanisterRefill refill{101, 500.5, 750};
    EXPECT_TRUE(refill == (FW_CanisterRefill{101, 500.5, 750}));
    EXPECT_FALSE(refill != (FW_CanisterRefill{101, 500.5, 750}));
    EXPECT_TRUE(refill != (FW_CanisterRefill{102, 500.5, 750}));
    EXPECT_TRUE(refill != (FW_CanisterRefill{101, 500, 750}));
    EXPECT_TRUE(refill != (FW_CanisterRefill{101, 500.5, 751}));
}

} // namespace
