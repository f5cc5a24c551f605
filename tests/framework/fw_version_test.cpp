// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_version.h>

#include "values.h"

namespace {

TEST(FW_Version, isInvalidUntilItIsRead)
{
    const FW_Version version;
    EXPECT_FALSE(version.isValid());
    EXPECT_EQ(version.toString(), "");
}

TEST(FW_Version, keepsItsSixIntegersInOrder)
{
    const FW_Version version(63, 2, 3, 4, 5, 38);
    EXPECT_EQ(version.m_family, 63);
    EXPECT_EQ(version.m_hardware, 2);
    EXPECT_EQ(version.m_major, 3);
    EXPECT_EQ(version.m_minor, 4);
    EXPECT_EQ(version.m_patch, 5);
    EXPECT_EQ(version.m_revision, 38);
    EXPECT_TRUE(version.isValid());
    EXPECT_EQ(version.toString(), "63.2.3.4.5.38");
}

TEST(FW_Version, isMadeOfFamilyAndRevisionForThoseWhoAskGates)
{
    const FW_Version version(63, 38);
    EXPECT_EQ(version.m_family, 63);
    EXPECT_EQ(version.m_revision, 38);
    EXPECT_TRUE(version.isValid());
    EXPECT_EQ(version.toString(), "63.0.0.0.0.38");
}

TEST(FW_Version, zeroIsAVersion)
{
    EXPECT_TRUE(FW_Version(0, 0).isValid());
    EXPECT_EQ(FW_Version(0, 0).toString(), "0.0.0.0.0.0");
}

TEST(FW_Version, oneNegativeIntegerMakesItInvalid)
{
    EXPECT_FALSE(FW_Version(-1, 2, 3, 4, 5, 6).isValid());
    EXPECT_FALSE(FW_Version(1, -1, 3, 4, 5, 6).isValid());
    EXPECT_FALSE(FW_Version(1, 2, -1, 4, 5, 6).isValid());
    EXPECT_FALSE(FW_Version(1, 2, 3, -1, 5, 6).isValid());
    EXPECT_FALSE(FW_Version(1, 2, 3, 4, -1, 6).isValid());
    EXPECT_FALSE(FW_Version(1, 2, 3, 4, 5, -1).isValid());
}

TEST(FW_Version, differsInAnyOfItsIntegers)
{
    const FW_Version version(1, 2, 3, 4, 5, 6);
    EXPECT_TRUE(version == FW_Version(1, 2, 3, 4, 5, 6));
    EXPECT_FALSE(version != FW_Version(1, 2, 3, 4, 5, 6));
    EXPECT_TRUE(version != FW_Version(9, 2, 3, 4, 5, 6));
    EXPECT_TRUE(version != FW_Version(1, 9, 3, 4, 5, 6));
    EXPECT_TRUE(version != FW_Version(1, 2, 9, 4, 5, 6));
    EXPECT_TRUE(version != FW_Version(1, 2, 3, 9, 5, 6));
    EXPECT_TRUE(version != FW_Version(1, 2, 3, 4, 9, 6));
    EXPECT_TRUE(version != FW_Version(1, 2, 3, 4, 5, 9));
    EXPECT_FALSE(version == FW_Version());
}

} // namespace
