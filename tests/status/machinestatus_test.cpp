// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/machinestatus.h"

#include "status/driverstatustesting.h"

#include <memory>

namespace {

using namespace testing_status;
using Statuses = QList<MachineStatus *>;

constexpr bool MachineStatus::*flags[] = {&MachineStatus::active, &MachineStatus::conf_mng,
                                          &MachineStatus::fw_update, &MachineStatus::stats_mng};

MachineStatus filledStatus()
{
    const MachineInfo info = filledMachineInfo();
    return {&info, true, false, true, false};
}

MachineStatus statusOfSID(int SID)
{
    MachineInfo info;
    info.SID = SID;
    return MachineStatus(&info);
}

void expectCleared(const MachineStatus &status)
{
    EXPECT_EQ(status.machineInfo(), nullptr);
    EXPECT_FALSE(status.active || status.conf_mng || status.fw_update || status.stats_mng);
}

TEST(MachineStatus, startsCleared)
{
    expectCleared(MachineStatus());
    expectCleared(MachineStatus(nullptr));
    MachineStatus status = filledStatus();
    status.clearMachineStatus();
    expectCleared(status);
}

TEST(MachineStatus, holdsACloneOfTheInfo)
{
    const DispenserInfo info = filledDispenserInfo();
    MachineStatus status(&info);
    EXPECT_NE(status.machineInfo(), &info);
    EXPECT_EQ(*status.machineInfo(), info);
    EXPECT_FALSE(status.active || status.conf_mng || status.fw_update || status.stats_mng);
    const MachineStatus copy = status;
    const std::unique_ptr<MachineStatus> clone(status.clone());
    status.setMachineInfo(nullptr);
    EXPECT_EQ(status.machineInfo(), nullptr);
    EXPECT_EQ(*copy.machineInfo(), info);
    EXPECT_EQ(*clone->machineInfo(), info);
    status = copy;
    EXPECT_EQ(*status.machineInfo(), info);
    status.setMachineInfo(status.machineInfo()); // its own
    EXPECT_EQ(*status.machineInfo(), info);
    status = *&status;
    EXPECT_EQ(status, copy);
}

TEST(MachineStatus, takesItsFlagsInTheirOrder)
{
    const MachineStatus status = filledStatus();
    EXPECT_TRUE(status.active && status.fw_update);
    EXPECT_FALSE(status.conf_mng || status.stats_mng);
}

TEST(MachineStatus, comparesFlagsAndInfo)
{
    const MachineStatus status = filledStatus();
    EXPECT_TRUE(status == filledStatus());
    for (const auto flag : flags)
        EXPECT_TRUE(status != changed(status, flag));
    MachineStatus other = status;
    other.setMachineInfo(nullptr);
    EXPECT_FALSE(status == other);
    EXPECT_FALSE(other == status);
    EXPECT_TRUE(MachineStatus() == MachineStatus());
    MachineInfo info = filledMachineInfo();
    info.serialConnectionName = "ttyUSB1";
    other.setMachineInfo(&info);
    EXPECT_FALSE(status == other);
}

TEST(MachineStatus, comparesTheFieldsOfItsKind)
{
    const MachineStatus &status = activeDispenser();
    const MachineStatus &same = activeDispenser();
    DispenserStatus scanning = activeDispenser();
    scanning.slave_scan = true;
    const MachineStatus &other = scanning;
    EXPECT_TRUE(status == same);
    EXPECT_FALSE(status == other);
    const DispenserInfo info = filledDispenserInfo();
    const MachineStatus plain(&info, true, false, false, false);
    EXPECT_FALSE(status == plain);
    EXPECT_FALSE(plain == status);
}

TEST(MachineStatus, comparesInfosThatMayBeNull)
{
    const MachineInfo info = filledMachineInfo();
    MachineInfo elsewhere = info;
    elsewhere.connectionType = "FTDI";
    for (bool strict : {true, false}) {
        EXPECT_TRUE(MachineStatus::compareMachineInfo(nullptr, nullptr, strict));
        EXPECT_FALSE(MachineStatus::compareMachineInfo(&info, nullptr, strict));
        EXPECT_FALSE(MachineStatus::compareMachineInfo(nullptr, &info, strict));
        EXPECT_TRUE(MachineStatus::compareMachineInfo(&info, &info, strict));
        EXPECT_EQ(MachineStatus::compareMachineInfo(&info, &elsewhere, strict), !strict);
    }
}

TEST(MachineStatus, tellsThatSIDsHaveChanged)
{
    MachineStatus one = statusOfSID(1);
    MachineStatus alsoOne = statusOfSID(1);
    alsoOne.active = true;
    MachineStatus two = statusOfSID(2);
    MachineStatus unknown;
    EXPECT_FALSE(MachineStatus::SIDchanged({}, {}));
    EXPECT_FALSE(MachineStatus::SIDchanged({&one, &two}, {&alsoOne, &two}));
    EXPECT_TRUE(MachineStatus::SIDchanged({&one, &two}, {&two, &one}));
    EXPECT_TRUE(MachineStatus::SIDchanged({&one}, {&one, &two}));
    EXPECT_TRUE(MachineStatus::SIDchanged({&one, &two}, {&one}));
    EXPECT_TRUE(MachineStatus::SIDchanged({&one}, {&unknown}));
    EXPECT_FALSE(MachineStatus::SIDchanged({nullptr}, {&unknown}));
}

TEST(MachineStatus, sortsStatusesByTheKindOfDevice)
{
    DispenserStatus dispenser = filledDispenserStatus();
    MixerStatus mixer = filledMixerStatus();
    const DispenserInfo info = filledDispenserInfo();
    MachineStatus plain(&info, true, false, true, false);
    MachineInfo scaleInfo;
    scaleInfo.serialDeviceType = SerialDeviceType::Scale;
    MachineStatus scale(&scaleInfo);
    MachineStatus unknown;
    const Statuses all = {&mixer, &dispenser, nullptr, &unknown, &scale, &plain};
    EXPECT_EQ(MachineStatus::filterDispenserStatus(all),
              (QList<DispenserStatus>{dispenser,
                                      DispenserStatus(info, true, false, true, false, false, false, false)}));
    EXPECT_EQ(MachineStatus::filterMixerStatus(all), QList<MixerStatus>{mixer});
    EXPECT_EQ(MachineStatus::filterDispenserStatus({}), QList<DispenserStatus>());
    EXPECT_EQ(MachineStatus::filterMixerStatus({&dispenser}), QList<MixerStatus>());
}

TEST(MachineStatus, isSortedWithTheInfoOfItsKind)
{
    MachineInfo info = filledMachineInfo();
    MachineStatus plain(&info, true, false, false, false);
    DispenserStatus dispenser = activeDispenser();
    dispenser.setMachineInfo(&info);
    const DispenserStatus expected(DispenserInfo(info, 0, 0, false), true, false, false, false, false, false,
                                   false);
    EXPECT_EQ(MachineStatus::filterDispenserStatus({&plain, &dispenser}),
              (QList<DispenserStatus>{expected, expected}));
    info.serialDeviceType = SerialDeviceType::Mixer;
    plain.setMachineInfo(&info);
    MixerStatus mixer(filledMixerInfo(), true, false, false, false);
    mixer.setMachineInfo(&info);
    const MixerStatus expectedMixer(MixerInfo(info, 0), true, false, false, false);
    EXPECT_EQ(MachineStatus::filterMixerStatus({&plain, &mixer}),
              (QList<MixerStatus>{expectedMixer, expectedMixer}));
}

TEST(MachineStatus, writesOnlyTheInfoOfItsKind)
{
    const MachineInfo plain = filledMachineInfo();
    const DispenserInfo ofDispenser = filledDispenserInfo();
    const MixerInfo ofMixer = filledMixerInfo();
    DispenserStatus dispenser = activeDispenser();
    MixerStatus mixer(ofMixer);
    for (const MachineInfo *info : {&plain, static_cast<const MachineInfo *>(&ofMixer)}) {
        dispenser.setMachineInfo(info);
        Value value = dispenser.toXmlRpcValue();
        EXPECT_EQ(dumped(value["dispenser_info"]), "0");
        EXPECT_EQ(DispenserStatus(value).machineInfo(), nullptr);
    }
    for (const MachineInfo *info : {&plain, static_cast<const MachineInfo *>(&ofDispenser)}) {
        mixer.setMachineInfo(info);
        Value value = mixer.toXmlRpcValue();
        EXPECT_EQ(dumped(value["mixer_info"]), "0");
        EXPECT_EQ(MixerStatus(value).machineInfo(), nullptr);
    }
}

} // namespace
