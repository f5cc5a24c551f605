// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/mixerinfo.h"

#include "base/machineinfotesting.h"

#include <QuvFramework/fw_mixer.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "MixerInfo::MixerInfo(const XmlRpc::XmlRpcValue&)";
constexpr char noID[] = "MixerInfo: expected mixer id value";

TEST(MixerInfo, startsClearedAsAMixer)
{
    const MixerInfo info;
    EXPECT_EQ(info.mixer_id, 0);
    EXPECT_EQ(info.SID, -1);
    EXPECT_EQ(info.serialDeviceType, SerialDeviceType::Mixer);
}

TEST(MixerInfo, travelsAsOneStruct)
{
    EXPECT_EQ(dumped(filledMixerInfo().toXmlRpcValue()), mixerInfoDump);
    EXPECT_EQ(MixerInfo(mixerInfoStruct()), filledMixerInfo());
    EXPECT_EQ(MixerInfo(infoWithout(mixerInfoStruct(), "device_type")), filledMixerInfo());
    EXPECT_EQ(MixerInfo(infoWith(mixerInfoStruct(), "device_type", 2)).serialDeviceType,
              SerialDeviceType::Scale);
}

TEST(MixerInfo, isRefusedWithoutAMember)
{
    for (const Value &bad :
         {infoWithout(mixerInfoStruct(), "mixer_id"), infoWith(mixerInfoStruct(), "mixer_id", true)})
        expectRefusal("DE03200", noID, ofValue, [&] { MixerInfo{bad}; });
    for (const InfoRefusal &refusal : machineInfoRefusals)
        expectRefusal(refusal.code, refusal.text, machineInfoFunction, [&] {
            MixerInfo{infoWithout(infoWithout(mixerInfoStruct(), refusal.key), "mixer_id")};
        });
}

TEST(MixerInfo, comparesTheMachineAndItsID)
{
    const MixerInfo info = filledMixerInfo();
    EXPECT_TRUE(info == filledMixerInfo());
    for (const MixerInfo &other : {MixerInfo(info, 6), MixerInfo(MachineInfo(), 5)}) {
        EXPECT_TRUE(info != other);
        EXPECT_FALSE(info.equalTo(other, false));
    }
    for (const InfoChange &change : linkChanges()) {
        MixerInfo other = info;
        change(other);
        EXPECT_TRUE(info != other);
        EXPECT_TRUE(info.equalTo(other, false));
    }
}

TEST(MixerInfo, makesAMixerOfAnyMachine)
{
    const MixerInfo info(filledMachineInfo(), 5); // which is a dispenser's
    EXPECT_EQ(info.serialDeviceType, SerialDeviceType::Mixer);
    EXPECT_EQ(dumped(info.toXmlRpcValue()), mixerInfoDump);
}

TEST(MixerInfo, isMadeOfAMixer)
{
    FW_Mixer mixer;
    mixer.setId(5);
    mixer.setSID("42");
    MixerInfo expected;
    expected.mixer_id = 5;
    expected.SID = 42;
    expected.enabled = true;
    expected.connectionType = "SERIAL";
    EXPECT_EQ(MixerInfo(&mixer, "SERIAL"), expected);
    EXPECT_EQ(MixerInfo(static_cast<const FW_Mixer *>(nullptr), "SERIAL"), MixerInfo());
}

TEST(MixerInfo, isClonedAsAWhole)
{
    const MixerInfo info = filledMixerInfo();
    const std::unique_ptr<MachineInfo> copy(static_cast<const MachineInfo &>(info).clone());
    EXPECT_EQ(*copy, info);
}

TEST(MixerInfo, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(filledMixerInfo());
    EXPECT_STREQ(variant.typeName(), "MixerInfo");
    EXPECT_EQ(QVariant(variant.toMap()).value<MixerInfo>(), filledMixerInfo());
    EXPECT_NE(variant, QVariant::fromValue(MixerInfo()));
}

TEST(MixerInfo, isNotMadeOfWhatWouldBeAValue)
{
    static_assert(!std::is_constructible_v<MixerInfo, bool>);
    static_assert(!std::is_constructible_v<MixerInfo, int>);
    static_assert(!std::is_constructible_v<MixerInfo, double>);
    static_assert(!std::is_constructible_v<MixerInfo, const char *>);
}

} // namespace
