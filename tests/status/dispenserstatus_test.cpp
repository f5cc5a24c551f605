// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatus.h"

#include "base/outofmemory.h"
#include "status/driverstatustesting.h"

#include <memory>
#include <type_traits>

namespace {

using namespace testing_status;
using Type = SerialDeviceType;

constexpr char ofValue[] = "DispenserStatus::DispenserStatus(const XmlRpc::XmlRpcValue&, int)";
constexpr char ofList[] = "DispenserStatus::DispenserStatus(QList<QVariant>)";
constexpr char noActive[] = "DispenserStatus: expected active dispenser value";
constexpr char noConfMng[] = "DispenserStatus: expected configuration management active value";
constexpr char noFwUpdate[] = "DispenserStatus: expected firmware updating value";
constexpr char noInfo[] = "DispenserStatus: errors during DispenserInfo creation";

List filledList()
{
    return {QVariant::fromValue(filledDispenserInfo()), true, false, true, false, true, false, true};
}

DispenserStatus with(bool DispenserStatus::*flag)
{
    DispenserStatus status = filledDispenserStatus();
    status.*flag = !(status.*flag);
    return status;
}

DispenserStatus withInfo(const InfoChange &change)
{
    DispenserInfo info = filledDispenserInfo();
    change(info);
    DispenserStatus status = filledDispenserStatus();
    status.setMachineInfo(&info);
    return status;
}

using Flag = bool DispenserStatus::*;

constexpr Flag flags[] = {&DispenserStatus::active,     &DispenserStatus::conf_mng,
                          &DispenserStatus::fw_update,  &DispenserStatus::stats_mng,
                          &DispenserStatus::slave_scan, &DispenserStatus::grav_sw_dose,
                          &DispenserStatus::scale_mngm};

TEST(DispenserStatus, startsCleared)
{
    const DispenserStatus status;
    EXPECT_EQ(status.machineInfo(), nullptr);
    EXPECT_EQ(status.dispenserInfo(), nullptr);
    for (const auto flag : flags)
        EXPECT_FALSE(status.*flag);
    EXPECT_EQ(dumped(status.toXmlRpcValue()),
              R"({"active": false, "conf_mng": false, "dispenser_info": 0, "fw_update": false, )"
              R"("grav_sw_dose": false, "scale_mngm": false, "slave_scan": false, "stats_mng": false})");
}

TEST(DispenserStatus, isClearedInPartOrAsAWhole)
{
    DispenserStatus status(filledDispenserInfo(), true, true, true, true, true, true, true);
    status.clear(false);
    EXPECT_EQ(status, DispenserStatus(filledDispenserInfo(), true, true, true, true, false, false, false));
    status = filledDispenserStatus();
    status.clear(true);
    EXPECT_EQ(status, DispenserStatus());
}

TEST(DispenserStatus, travelsAsAStruct)
{
    for (int format : {0, 1, 7}) {
        EXPECT_EQ(dumped(filledDispenserStatus().toXmlRpcValue(format)), dispenserStatusDump());
        EXPECT_EQ(DispenserStatus(dispenserStatusStruct(), format), filledDispenserStatus());
    }
    EXPECT_EQ(*DispenserStatus(dispenserStatusStruct()).dispenserInfo(), filledDispenserInfo());
    EXPECT_EQ(DispenserStatus(DispenserStatus().toXmlRpcValue()), DispenserStatus());
    Value older = dispenserStatusStruct();
    for (const char *key : {"stats_mng", "slave_scan", "grav_sw_dose", "scale_mngm"})
        older = infoWithout(older, key);
    EXPECT_EQ(DispenserStatus(older),
              DispenserStatus(filledDispenserInfo(), true, false, true, false, false, false, false));
}

TEST(DispenserStatus, isRefusedWithoutAMember)
{
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"active", "DE00724", noActive},
        {"conf_mng", "DE00723", noConfMng},
        {"fw_update", "DE00725", noFwUpdate}};
    for (const auto &[key, code, text] : rows) {
        for (const Value &bad : {infoWithout(dispenserStatusStruct(), key),
                                 infoWith(infoWithout(dispenserStatusStruct(), "dispenser_info"), key, 1)})
            expectRefusal(code, text, ofValue, [&] { DispenserStatus{bad}; });
    }
    expectRefusal("DE00761", noInfo, ofValue,
                  [] { DispenserStatus{infoWithout(dispenserStatusStruct(), "dispenser_info")}; });
    for (const Value &value : {Value(), Value(0), arrayOf(true), structOf({})})
        expectRefusal("DE00724", noActive, ofValue, [&] { DispenserStatus{value}; });
}

TEST(DispenserStatus, passesOnWhatTheInfoRefuses)
{
    for (const Value &bad : {Value(1), Value("0"), structOf({}), arrayOf()})
        expectRefusal("DE00766", "MachineInfo: expected enabled value", machineInfoFunction,
                      [&] { DispenserStatus{infoWith(dispenserStatusStruct(), "dispenser_info", bad)}; });
    expectRefusal(
        "DE00744", "DispenserInfo: expected dispenser id value",
        "DispenserInfo::DispenserInfo(const XmlRpc::XmlRpcValue&)",
        [] { DispenserStatus{infoWith(dispenserStatusStruct(), "dispenser_info", machineInfoStruct())}; });
}

TEST(DispenserStatus, refusesAnInfoThatCannotBeMade)
{
    const Value value = dispenserStatusStruct();
    const DispenserStatus ready(value);
    expectRefusal("DE00761", noInfo, ofValue, [&] { outOfMemoryOnce([&] { DispenserStatus{value}; }); });
}

TEST(DispenserStatus, isMadeOfAList)
{
    EXPECT_EQ(DispenserStatus(filledList()), filledDispenserStatus());
    EXPECT_EQ(DispenserStatus(filledList().mid(0, 4)),
              DispenserStatus(filledDispenserInfo(), true, false, true, false, false, false, false));
    List list = filledList();
    list[0] = QVariant::fromValue(filledDispenserInfo()).toMap();
    EXPECT_EQ(DispenserStatus(list), filledDispenserStatus());
    list[0] = 0;
    EXPECT_EQ(DispenserStatus(list).machineInfo(), nullptr);
}

TEST(DispenserStatus, refusesAListThatIsCutOrHoldsOtherThings)
{
    for (int size = 0; size < 4; ++size)
        expectRefusal("DE00760", "DispenserStatus: too few parameters", ofList,
                      [&] { DispenserStatus(filledList().mid(0, size)); });
    const std::tuple<int, const char *, const char *> rows[] = {{0, "DE00761", noInfo},
                                                                {1, "DE00727", noActive},
                                                                {2, "DE00726", noConfMng},
                                                                {3, "DE00728", noFwUpdate}};
    for (const auto &[place, code, text] : rows) {
        for (const QVariant &bad :
             {QVariant(1), QVariant("true"), QVariant(List{true}), QVariant(QVariantMap{{"active", true}})}) {
            List list = filledList();
            list[place] = bad;
            expectRefusal(code, text, ofList, [&] { DispenserStatus{list}; });
        }
    }
    List list = filledList();
    list[0] = QVariantMap{{"disp_id", 3}};
    expectRefusal("DE00766", "MachineInfo: expected enabled value", machineInfoFunction,
                  [&] { DispenserStatus{list}; });
}

TEST(DispenserStatus, isMadeOfADispenser)
{
    FW_Dispenser dispenser;
    dispenser.setId(3);
    dispenser.setSID("42");
    DispenserInfo info(&dispenser, "SERIAL");
    EXPECT_EQ(DispenserStatus(dispenser, "SERIAL", true, false), DispenserStatus(info));
    info.enabled = false;
    EXPECT_EQ(DispenserStatus(dispenser, "SERIAL", false, true),
              DispenserStatus(info, true, false, false, false, false, false, false));
    EXPECT_EQ(DispenserStatus(info), DispenserStatus(info, false, false, false, false, false, false, false));
}

TEST(DispenserStatus, comparesEveryField)
{
    const DispenserStatus status = filledDispenserStatus();
    EXPECT_TRUE(status == filledDispenserStatus());
    for (const Type type : {Type::Dispenser, Type::Scale, Type::Mixer}) {
        EXPECT_TRUE(status.equalTo(filledDispenserStatus(), true, type));
        for (const auto flag : flags) {
            EXPECT_TRUE(status != with(flag));
            EXPECT_FALSE(status.equalTo(with(flag), true, type));
        }
        for (const InfoChange &change : linkChanges())
            EXPECT_FALSE(status.equalTo(withInfo(change), true, type));
    }
}

TEST(DispenserStatus, comparesWhatMattersToADispenser)
{
    const DispenserStatus status = filledDispenserStatus();
    for (const Flag flag :
         {Flag(&DispenserStatus::stats_mng), &DispenserStatus::grav_sw_dose, &DispenserStatus::scale_mngm})
        EXPECT_TRUE(status.equalTo(with(flag), false, Type::Dispenser));
    for (const Flag flag : {Flag(&DispenserStatus::active), Flag(&DispenserStatus::conf_mng),
                            Flag(&DispenserStatus::fw_update), &DispenserStatus::slave_scan})
        EXPECT_FALSE(status.equalTo(with(flag), false, Type::Dispenser));
    for (const InfoChange &change : linkChanges())
        EXPECT_TRUE(status.equalTo(withInfo(change), false, Type::Dispenser));
    for (const InfoChange &change : identityChanges())
        EXPECT_FALSE(status.equalTo(withInfo(change), false, Type::Dispenser));
}

TEST(DispenserStatus, comparesWhatMattersToAScaleAndToOthers)
{
    const DispenserStatus status = filledDispenserStatus();
    for (const auto flag : flags) {
        EXPECT_EQ(status.equalTo(with(flag), false, Type::Scale), flag != &DispenserStatus::scale_mngm);
        EXPECT_TRUE(status.equalTo(with(flag), false, Type::Mixer));
        EXPECT_TRUE(status.equalTo(with(flag), false, static_cast<Type>(7)));
    }
    for (const InfoChange &change : identityChanges())
        EXPECT_TRUE(status.equalTo(withInfo(change), false, Type::Scale));
}

TEST(DispenserStatus, tellsRelevantChangesOfLists)
{
    const DispenserStatus status = filledDispenserStatus();
    const DispenserStatus statistics = with(&DispenserStatus::stats_mng);
    const DispenserStatus inactive = with(&DispenserStatus::active);
    const auto changes = [](const QList<DispenserStatus> &before, const QList<DispenserStatus> &after) {
        return DispenserStatus::hasRelevantChanges(before, after, Type::Dispenser);
    };
    EXPECT_FALSE(changes({}, {}));
    EXPECT_FALSE(changes({status, inactive}, {statistics, inactive}));
    EXPECT_TRUE(changes({status, inactive}, {inactive, status}));
    EXPECT_TRUE(changes({status}, {status, status}));
    EXPECT_TRUE(changes({status, status}, {status}));
    EXPECT_FALSE(DispenserStatus::hasRelevantChanges({status}, {inactive}, Type::Scale));
    EXPECT_TRUE(DispenserStatus::hasRelevantChanges({status}, {}, Type::Mixer));
}

TEST(DispenserStatus, tellsThatSIDsHaveChanged)
{
    const DispenserStatus status = filledDispenserStatus();
    const DispenserStatus other = withInfo([](MachineInfo &info) { info.SID = 43; });
    EXPECT_FALSE(DispenserStatus::SIDchanged({}, {}));
    EXPECT_FALSE(DispenserStatus::SIDchanged({status}, {with(&DispenserStatus::active)}));
    EXPECT_TRUE(DispenserStatus::SIDchanged({status}, {other}));
    EXPECT_TRUE(DispenserStatus::SIDchanged({status}, {DispenserStatus()}));
    EXPECT_TRUE(DispenserStatus::SIDchanged({status}, {}));
}

TEST(DispenserStatus, isClonedAsAWhole)
{
    const DispenserStatus status = filledDispenserStatus();
    const std::unique_ptr<MachineStatus> copy(static_cast<const MachineStatus &>(status).clone());
    EXPECT_EQ(*copy, status);
    EXPECT_NE(copy->machineInfo(), status.machineInfo());
}

TEST(DispenserStatus, travelsInAVariant)
{
    const QVariant variant = QVariant::fromValue(filledDispenserStatus());
    EXPECT_STREQ(variant.typeName(), "DispenserStatus");
    EXPECT_EQ(QVariant(variant.toMap()).value<DispenserStatus>(), filledDispenserStatus());
    EXPECT_NE(variant, QVariant::fromValue(DispenserStatus()));
}

TEST(DispenserStatus, isNotMadeOfWhatWouldBeAValue)
{
    static_assert(!std::is_constructible_v<DispenserStatus, bool>);
    static_assert(!std::is_constructible_v<DispenserStatus, int>);
    static_assert(!std::is_constructible_v<DispenserStatus, double>);
    static_assert(!std::is_constructible_v<DispenserStatus, const char *>);
    static_assert(!std::is_convertible_v<Value, DispenserStatus>);
}

} // namespace
