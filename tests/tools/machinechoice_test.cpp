// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinechoice.h"

#include "commandline.h"

#include <gtest/gtest.h>

namespace {

TEST(MachineChoice, isAKindAndMayBeANumber)
{
    const quv::MachineChoice dispenser = quv::machineChoice(QStringLiteral("dispenser"), "--on");
    EXPECT_EQ(dispenser.type, SerialDeviceType::Dispenser);
    EXPECT_EQ(dispenser.id, std::nullopt);
    const quv::MachineChoice mixer = quv::machineChoice(QStringLiteral("mixer:12"), "--on");
    EXPECT_EQ(mixer.type, SerialDeviceType::Mixer);
    EXPECT_EQ(mixer.id, 12);
}

TEST(MachineChoice, isRefusedWithItsSource)
{
    try {
        quv::machineChoice(QStringLiteral("scale:1"), "QUV_ON");
        FAIL();
    } catch (const quv::UsageError &error) {
        EXPECT_STREQ(error.what(),
                     "QUV_ON: a machine is called dispenser, mixer, or by its number too: dispenser:2; not "
                     "\"scale:1\"");
    }
}

} // namespace
