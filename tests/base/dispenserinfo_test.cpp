// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/dispenserinfo.h"

#include "base/machineinfotesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_base;

constexpr char ofValue[] = "DispenserInfo::DispenserInfo(const XmlRpc::XmlRpcValue&)";
constexpr char noID[] = "DispenserInfo: expected dispenser id value";
constexpr char noParallelism[] = "DispenserInfo: expected tinting parallelism value";

TEST(DispenserInfo, startsCleared)
{
    const DispenserInfo info;
    EXPECT_EQ(info.disp_id, 0);
    EXPECT_EQ(info.tinting_parallelism, 0);
    EXPECT_FALSE(info.rotating_disp);
    EXPECT_EQ(info.SID, -1);
    EXPECT_EQ(info.serialDeviceType, SerialDeviceType::Dispenser);
}

TEST(DispenserInfo, travelsAsOneStruct)
{
    EXPECT_EQ(dumped(filledDispenserInfo().toXmlRpcValue()), dispenserInfoDump);
    EXPECT_EQ(DispenserInfo(dispenserInfoStruct()), filledDispenserInfo());
    const Value older = infoWithout(dispenserInfoStruct(), "rotating_disp");
    EXPECT_EQ(DispenserInfo(older), DispenserInfo(filledMachineInfo(), 3, 2, false));
}

TEST(DispenserInfo, isRefusedWithoutAMember)
{
    for (const Value &bad : {infoWithout(dispenserInfoStruct(), "disp_id"),
                             infoWith(dispenserInfoStruct(), "disp_id", "3"), machineInfoStruct()})
        expectRefusal("DE00744", noID, ofValue, [&] { DispenserInfo{bad}; });
    for (const Value &bad : {infoWithout(dispenserInfoStruct(), "tinting_parallelism"),
                             infoWith(dispenserInfoStruct(), "tinting_parallelism", 2.0)})
        expectRefusal("DE00769", noParallelism, ofValue, [&] { DispenserInfo{bad}; });
    for (const InfoRefusal &refusal : machineInfoRefusals)
        expectRefusal(refusal.code, refusal.text, machineInfoFunction, [&] {
            DispenserInfo{infoWithout(infoWithout(dispenserInfoStruct(), refusal.key), "disp_id")};
        });
}

TEST(DispenserInfo, comparesTheMachineAndItsOwnFields)
{
    const DispenserInfo info = filledDispenserInfo();
    EXPECT_TRUE(info == filledDispenserInfo());
    for (const DispenserInfo &other :
         {DispenserInfo(filledMachineInfo(), 4, 2, true), DispenserInfo(filledMachineInfo(), 3, 1, true),
          DispenserInfo(filledMachineInfo(), 3, 2, false), DispenserInfo(MachineInfo(), 3, 2, true)}) {
        EXPECT_TRUE(info != other);
        EXPECT_FALSE(info.equalTo(other, true));
        EXPECT_FALSE(info.equalTo(other, false));
    }
    for (const InfoChange &change : linkChanges()) {
        DispenserInfo other = info;
        change(other);
        EXPECT_TRUE(info != other);
        EXPECT_TRUE(info.equalTo(other, false));
    }
}

TEST(DispenserInfo, isMadeOfADispenser)
{
    FW_Dispenser dispenser;
    dispenser.setId(3);
    dispenser.setSID("42");
    dispenser.setTintingParallelism(2);
    dispenser.setModel(MachineModel::Rotan);
    DispenserInfo expected;
    expected.disp_id = 3;
    expected.SID = 42;
    expected.enabled = true;
    expected.connectionType = "SERIAL";
    expected.tinting_parallelism = 2;
    expected.rotating_disp = true;
    EXPECT_EQ(DispenserInfo(&dispenser, "SERIAL"), expected);
    dispenser.setModel(MachineModel::Lumina);
    EXPECT_FALSE(DispenserInfo(&dispenser, "SERIAL").rotating_disp);
    EXPECT_EQ(DispenserInfo(static_cast<const FW_Dispenser *>(nullptr), "SERIAL"), DispenserInfo());
}

TEST(DispenserInfo, isClonedAsAWhole)
{
    const DispenserInfo info = filledDispenserInfo();
    const std::unique_ptr<MachineInfo> copy(static_cast<const MachineInfo &>(info).clone());
    EXPECT_EQ(*copy, info);
}

TEST(DispenserInfo, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(filledDispenserInfo());
    EXPECT_STREQ(variant.typeName(), "DispenserInfo");
    EXPECT_EQ(QVariant(variant.toMap()).value<DispenserInfo>(), filledDispenserInfo());
    EXPECT_NE(variant, QVariant::fromValue(DispenserInfo()));
}

TEST(DispenserInfo, isNotMadeOfWhatWouldBeAValue)
{
    static_assert(!std::is_constructible_v<DispenserInfo, bool>);
    static_assert(!std::is_constructible_v<DispenserInfo, int>);
    static_assert(!std::is_constructible_v<DispenserInfo, double>);
    static_assert(!std::is_constructible_v<DispenserInfo, const char *>);
}

} // namespace
