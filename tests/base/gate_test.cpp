// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/gate_p.h"

#include <gtest/gtest.h>

namespace {

constexpr quv::FamilyGate gates[] = {{63, 38}, {19}, {42, 0}};

bool passes(int family, int revision)
{
    return quv::passesGate(gates, FW_Version(family, revision));
}

} // namespace

TEST(Gate, opensAboveTheRevision)
{
    EXPECT_FALSE(passes(63, 0));
    EXPECT_FALSE(passes(63, 38));
    EXPECT_TRUE(passes(63, 39));
    EXPECT_TRUE(passes(63, 1000));
    EXPECT_FALSE(passes(42, 0));
    EXPECT_TRUE(passes(42, 1));
}

TEST(Gate, isAlwaysOpenWithoutARevision)
{
    EXPECT_TRUE(passes(19, 0));
    EXPECT_TRUE(passes(19, 500));
}

TEST(Gate, isClosedForOtherFamilies)
{
    EXPECT_FALSE(passes(62, 100));
    EXPECT_FALSE(passes(0, 100));
    EXPECT_FALSE(quv::passesGate(gates, FW_Version()));
}

TEST(Gate, isOpenForOtherFamiliesWhereToldSo)
{
    EXPECT_TRUE(quv::passesGate(gates, FW_Version(62, 0), true));
    EXPECT_FALSE(quv::passesGate(gates, FW_Version(63, 38), true));
    EXPECT_TRUE(quv::passesGate(gates, FW_Version(63, 39), true));
}

TEST(Gate, readsFamilyAndRevisionOnly)
{
    EXPECT_TRUE(quv::passesGate(gates, FW_Version(63, 0, 0, 0, 0, 39)));
    EXPECT_FALSE(quv::passesGate(gates, FW_Version(63, 99, 99, 99, 99, 38)));
}
