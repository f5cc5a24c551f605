// SPDX-License-Identifier: LGPL-3.0-or-later
#include "simulatedfirmware.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <gtest/gtest.h>

namespace {

using quv::FirmwareReply;
using quv::SimulatedFirmware;

//                           length, not read, status, masks 1 to 5, position, zone, masks 8 to 12
const char *const Idle = "E 0 1 0 0 0 0 0 F5 F5 4 0 0 0 0";
const char *const IdleDual = "E 0 1 0 0 0 0 0 F5 F5 C 0 0 0 0";
const char *const Resetting = "E 0 1 40 0 0 0 0 F5 F5 0 0 0 0 0";

class SimulatedFirmwareTest : public testing::Test
{
protected:
    SimulatedFirmware::Clock clock()
    {
        return [this] { return m_now; };
    }

    static std::string tokens(const FirmwareReply &reply) { return reply.tokens.join(' ').toStdString(); }
    static std::string ask(SimulatedFirmware &firmware, const char *code)
    {
        return tokens(firmware.execute(QLatin1String(code), 0, {}));
    }

    FW_Dispenser m_dispenser;
    qint64 m_now = 1000;
};

TEST_F(SimulatedFirmwareTest, anIdleDispenserIsReadyToDispenseAndHasNoPosition)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    const FirmwareReply reply = firmware.execute(QStringLiteral("0006"), 3, {});
    EXPECT_FALSE(reply.refused);
    EXPECT_EQ(tokens(reply), Idle);
}

TEST_F(SimulatedFirmwareTest, bothHeadsOfADispenserAreReady)
{
    m_dispenser.setHeadArrangement(FW_Dispenser::HeadArrangement::Dual);
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    EXPECT_EQ(ask(firmware, "0006"), IdleDual);
}

TEST_F(SimulatedFirmwareTest, aResetShowsInTheStatusUntilItsSixSecondsAreOver)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    const FirmwareReply begun = firmware.execute(QStringLiteral("0001"), 0, {});
    EXPECT_FALSE(begun.refused);
    EXPECT_EQ(tokens(begun), "0");
    EXPECT_EQ(ask(firmware, "0006"), Resetting);
    m_now += 5999;
    EXPECT_EQ(ask(firmware, "0006"), Resetting);
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
}

TEST_F(SimulatedFirmwareTest, speedShortensAReset)
{
    SimulatedFirmware firmware(m_dispenser, 4, clock());
    ask(firmware, "0001");
    m_now += 1499;
    EXPECT_EQ(ask(firmware, "0006"), Resetting);
    m_now += 1;
    EXPECT_EQ(ask(firmware, "0006"), Idle);
}

TEST_F(SimulatedFirmwareTest, noSecondResetBeginsDuringTheFirst)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    ask(firmware, "0001");
    m_now += 3000;
    const FirmwareReply second = firmware.execute(QStringLiteral("0001"), 0, {});
    EXPECT_TRUE(second.refused);
    EXPECT_EQ(tokens(second), "6 0 8 0 0 0 0");
    m_now += 3000; // the refused one did not prolong it
    EXPECT_FALSE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
}

TEST_F(SimulatedFirmwareTest, refusalsTellTheirReason)
{
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    const FirmwareReply unknown = firmware.execute(QStringLiteral("0017"), 0, {});
    EXPECT_TRUE(unknown.refused);
    EXPECT_EQ(tokens(unknown), "6 8 0 0 0 0 0");
    for (const int module : {-1, 256}) {
        const FirmwareReply refused = firmware.execute(QStringLiteral("0006"), module, {});
        EXPECT_TRUE(refused.refused) << module;
        EXPECT_EQ(tokens(refused), "6 10 0 0 0 0 0") << module;
    }
    EXPECT_FALSE(firmware.execute(QStringLiteral("0006"), 255, {}).refused);
    const FirmwareReply parameters = firmware.execute(QStringLiteral("0006"), 0, {1});
    EXPECT_TRUE(parameters.refused);
    EXPECT_EQ(tokens(parameters), "6 20 0 0 0 0 0");
}

TEST_F(SimulatedFirmwareTest, aDispenserOfFamily2HasTheStatusUnderItsOwnCodeAndNoReset)
{
    m_dispenser.setCommandFamily(FW_Dispenser::CommandFamily2);
    SimulatedFirmware firmware(m_dispenser, 1, clock());
    EXPECT_EQ(ask(firmware, "I3"), Idle);
    EXPECT_TRUE(firmware.execute(QStringLiteral("0006"), 0, {}).refused);
    EXPECT_TRUE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
}

TEST_F(SimulatedFirmwareTest, aMixerResetsAndHasNoDispensersStatus)
{
    SimulatedFirmware firmware(FW_Mixer(), 1, clock());
    EXPECT_EQ(ask(firmware, "0001"), "0");
    EXPECT_TRUE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
    EXPECT_EQ(ask(firmware, "0006"), "6 8 0 0 0 0 0");
    m_now += 6000;
    EXPECT_FALSE(firmware.execute(QStringLiteral("0001"), 0, {}).refused);
}

} // namespace
