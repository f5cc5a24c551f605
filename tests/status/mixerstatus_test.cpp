// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerstatus.h"

#include "status/driverstatustesting.h"

#include <QuvFramework/fw_mixer.h>

#include <memory>
#include <type_traits>

namespace {

using namespace testing_status;
using Type = SerialDeviceType;

constexpr char ofValue[] = "MixerStatus::MixerStatus(const XmlRpc::XmlRpcValue&, int)";
constexpr char ofList[] = "MixerStatus::MixerStatus(QList<QVariant>)";
constexpr char noActive[] = "MixerStatus: expected active mixer value";
constexpr char noConfMng[] = "MixerStatus: expected configuration management active value";
constexpr char noFwUpdate[] = "MixerStatus: expected firmware updating value";
constexpr char noInfo[] = "MixerStatus: errors during MixerInfo creation";

List filledList()
{
    return {QVariant::fromValue(filledMixerInfo()), false, true, false, true};
}

MixerStatus withInfo(const InfoChange &change)
{
    MixerInfo info = filledMixerInfo();
    change(info);
    MixerStatus status = filledMixerStatus();
    status.setMachineInfo(&info);
    return status;
}

constexpr bool MachineStatus::*flags[] = {&MachineStatus::active, &MachineStatus::conf_mng,
                                          &MachineStatus::fw_update, &MachineStatus::stats_mng};

TEST(MixerStatus, travelsAsAStruct)
{
    EXPECT_EQ(dumped(filledMixerStatus().toXmlRpcValue()), mixerStatusDump());
    EXPECT_EQ(dumped(filledMixerStatus().toXmlRpcValue(7)), mixerStatusDump());
    EXPECT_EQ(MixerStatus(mixerStatusStruct()), filledMixerStatus());
    EXPECT_EQ(MixerStatus(mixerStatusStruct(), 7), filledMixerStatus());
    EXPECT_EQ(*MixerStatus(mixerStatusStruct()).mixerInfo(), filledMixerInfo());
    EXPECT_EQ(MixerStatus(infoWithout(mixerStatusStruct(), "stats_mng")),
              MixerStatus(filledMixerInfo(), false, true, false, false));
    EXPECT_EQ(
        dumped(MixerStatus().toXmlRpcValue()),
        R"({"active": false, "conf_mng": false, "fw_update": false, "mixer_info": 0, "stats_mng": false})");
    EXPECT_EQ(MixerStatus(MixerStatus().toXmlRpcValue()), MixerStatus());
    EXPECT_EQ(MixerStatus().mixerInfo(), nullptr);
}

TEST(MixerStatus, isRefusedWithoutAMember)
{
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"active", "DE03201", noActive},
        {"conf_mng", "DE03202", noConfMng},
        {"fw_update", "DE03203", noFwUpdate}};
    for (const auto &[key, code, text] : rows) {
        for (const Value &bad : {infoWithout(mixerStatusStruct(), key),
                                 infoWith(infoWithout(mixerStatusStruct(), "mixer_info"), key, 1)})
            expectRefusal(code, text, ofValue, [&] { MixerStatus{bad}; });
    }
    expectRefusal("DE03204", noInfo, ofValue,
                  [] { MixerStatus{infoWithout(mixerStatusStruct(), "mixer_info")}; });
    expectRefusal("DE03200", "MixerInfo: expected mixer id value",
                  "MixerInfo::MixerInfo(const XmlRpc::XmlRpcValue&)",
                  [] { MixerStatus{infoWith(mixerStatusStruct(), "mixer_info", machineInfoStruct())}; });
    expectRefusal("DE03201", noActive, ofValue, [] { MixerStatus{Value(0)}; });
}

TEST(MixerStatus, isMadeOfAList)
{
    EXPECT_EQ(MixerStatus(filledList()), filledMixerStatus());
    EXPECT_EQ(MixerStatus(filledList().mid(0, 4)), MixerStatus(filledMixerInfo(), false, true, false, false));
    for (int size = 0; size < 4; ++size)
        expectRefusal("DE03205", "MixerStatus: too few parameters", ofList,
                      [&] { MixerStatus(filledList().mid(0, size)); });
    const std::tuple<int, const char *, const char *> rows[] = {{0, "DE03204", noInfo},
                                                                {1, "DE03201", noActive},
                                                                {2, "DE03202", noConfMng},
                                                                {3, "DE03203", noFwUpdate}};
    for (const auto &[place, code, text] : rows) {
        for (const QVariant &bad : {QVariant(1), QVariant("true"), QVariant(List{true})}) {
            List list = filledList();
            list[place] = bad;
            expectRefusal(code, text, ofList, [&] { MixerStatus{list}; });
        }
    }
}

TEST(MixerStatus, isMadeOfAMixer)
{
    FW_Mixer mixer;
    mixer.setId(5);
    MixerInfo info(&mixer, "SERIAL");
    EXPECT_EQ(MixerStatus(mixer, "SERIAL", true, false), MixerStatus(info));
    info.enabled = false;
    EXPECT_EQ(MixerStatus(mixer, "SERIAL", false, true), MixerStatus(info, true, false, false, false));
    EXPECT_EQ(MixerStatus(info), MixerStatus(info, false, false, false, false));
}

TEST(MixerStatus, comparesEveryFieldOrWhatMatters)
{
    const MixerStatus status = filledMixerStatus();
    EXPECT_TRUE(status == filledMixerStatus());
    for (const auto flag : flags) {
        const MixerStatus other = changed(status, flag);
        EXPECT_TRUE(status != other);
        EXPECT_FALSE(status.equalTo(other, true, Type::Mixer));
        EXPECT_EQ(status.equalTo(other, false, Type::Mixer), flag == &MachineStatus::stats_mng);
        EXPECT_TRUE(status.equalTo(other, false, Type::Dispenser));
        EXPECT_TRUE(status.equalTo(other, false, Type::Scale));
    }
    for (const InfoChange &change : linkChanges()) {
        EXPECT_TRUE(status != withInfo(change));
        EXPECT_TRUE(status.equalTo(withInfo(change), false, Type::Mixer));
    }
    for (const InfoChange &change : identityChanges())
        EXPECT_FALSE(status.equalTo(withInfo(change), false, Type::Mixer));
}

TEST(MixerStatus, tellsChangesOfLists)
{
    const MixerStatus status = filledMixerStatus();
    const MixerStatus active = changed(status, &MachineStatus::active);
    const MixerStatus statistics = changed(status, &MachineStatus::stats_mng);
    const MixerStatus other = withInfo([](MachineInfo &info) { info.SID = 43; });
    EXPECT_FALSE(MixerStatus::hasRelevantChanges({}, {}, Type::Mixer));
    EXPECT_FALSE(MixerStatus::hasRelevantChanges({status}, {statistics}, Type::Mixer));
    EXPECT_TRUE(MixerStatus::hasRelevantChanges({status}, {active}, Type::Mixer));
    EXPECT_TRUE(MixerStatus::hasRelevantChanges({status}, {status, status}, Type::Dispenser));
    EXPECT_FALSE(MixerStatus::SIDchanged({status}, {active}));
    EXPECT_TRUE(MixerStatus::SIDchanged({status}, {other}));
    EXPECT_TRUE(MixerStatus::SIDchanged({}, {status}));
}

TEST(MixerStatus, travelsInAVariantAndIsClonedAsAWhole)
{
    const MixerStatus status = filledMixerStatus();
    const QVariant variant = QVariant::fromValue(status);
    EXPECT_STREQ(variant.typeName(), "MixerStatus");
    EXPECT_EQ(QVariant(variant.toMap()).value<MixerStatus>(), status);
    EXPECT_NE(variant, QVariant::fromValue(MixerStatus()));
    const std::unique_ptr<MachineStatus> copy(static_cast<const MachineStatus &>(status).clone());
    EXPECT_EQ(*copy, status);
}

TEST(MixerStatus, isNotMadeOfWhatWouldBeAValue)
{
    static_assert(!std::is_constructible_v<MixerStatus, bool>);
    static_assert(!std::is_constructible_v<MixerStatus, int>);
    static_assert(!std::is_constructible_v<MixerStatus, double>);
    static_assert(!std::is_constructible_v<MixerStatus, const char *>);
}

} // namespace
