// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserstatus.h"

#include "base/dispenserinfo_p.h"
#include "base/record_p.h"
#include "status/dispenserstatus_p.h"
#include "status/machinestatus_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_metatype.h>

#include <utility>

namespace {

const bool isRegistered = RegisterTravellingType<DispenserStatus>("DispenserStatus");

constexpr int requiredElements = 4;

/** All but the info, which is an object of its own. */
const quv::Record<DispenserStatus> &record()
{
    using Status = DispenserStatus;
    static const quv::Record<Status> flags({
        {Status::active_TAG,
         &Status::active,
         quv::noDispenserActive,
         {"DE00727", quv::noDispenserActive.text}},
        {Status::confMng_TAG,
         &Status::conf_mng,
         quv::noDispenserConfMng,
         {"DE00726", quv::noDispenserConfMng.text}},
        {Status::fwUpdate_TAG,
         &Status::fw_update,
         quv::noDispenserFwUpdate,
         {"DE00728", quv::noDispenserFwUpdate.text}},
        {Status::statsMng_TAG, &Status::stats_mng},
        {Status::slaveScan_TAG, &Status::slave_scan},
        {Status::gravSwDose_TAG, &Status::grav_sw_dose},
        {Status::scaleMngm_TAG, &Status::scale_mngm},
    });
    return flags;
}

} // namespace

DispenserStatus::DispenserStatus(const DispenserInfo &info) : MachineStatus(&info) {}

DispenserStatus::DispenserStatus(const DispenserInfo &info, bool isActive, bool managesConfiguration,
                                 bool updatesFirmware, bool managesStatistics, bool scansSlaves,
                                 bool dosesBySoftware, bool managesScale)
    : MachineStatus(&info, isActive, managesConfiguration, updatesFirmware, managesStatistics),
      slave_scan(scansSlaves),
      grav_sw_dose(dosesBySoftware),
      scale_mngm(managesScale)
{}

DispenserStatus::DispenserStatus(const FW_Dispenser &dispenser, QString connection, bool isEnabled,
                                 bool isActive)
{
    DispenserInfo info(&dispenser, std::move(connection));
    info.enabled = isEnabled;
    setMachineInfo(&info);
    active = isActive;
}

DispenserStatus::DispenserStatus(QList<QVariant> list)
{
    if (list.size() < requiredElements)
        throw FW_Exception("DE00760", "DispenserStatus: too few parameters", Q_FUNC_INFO);
    quv::readInfo<DispenserInfo>(*this, quv::noDispenserInfo, Q_FUNC_INFO, list, 0);
    record().decode(list.mid(1), *this, Q_FUNC_INFO);
}

DispenserStatus::DispenserStatus(const XmlRpc::XmlRpcValue &value, int)
{
    record().decode(value, *this, Q_FUNC_INFO);
    quv::readInfo<DispenserInfo>(*this, quv::noDispenserInfo, Q_FUNC_INFO,
                                 FindXmlRpcMember(value, dispenserInfo_TAG));
}

DispenserStatus *DispenserStatus::clone() const
{
    return new DispenserStatus(*this);
}

const DispenserInfo *DispenserStatus::dispenserInfo() const
{
    return dynamic_cast<const DispenserInfo *>(machineInfo());
}

void DispenserStatus::clear(bool all)
{
    if (all)
        clearMachineStatus();
    slave_scan = false;
    grav_sw_dose = false;
    scale_mngm = false;
}

bool DispenserStatus::equalTo(const DispenserStatus &other, bool strict, SerialDeviceType type) const
{
    if (strict)
        return *this == other;
    switch (type) {
    case SerialDeviceType::Dispenser:
        return quv::haveSameRelevance(*this, other) && slave_scan == other.slave_scan;
    case SerialDeviceType::Scale:
        return scale_mngm == other.scale_mngm;
    default:
        return true;
    }
}

bool DispenserStatus::hasRelevantChanges(const QList<DispenserStatus> &before,
                                         const QList<DispenserStatus> &after, SerialDeviceType type)
{
    return quv::differ(before, after, type);
}

bool DispenserStatus::SIDchanged(const QList<DispenserStatus> &before, const QList<DispenserStatus> &after)
{
    return quv::haveOtherSIDs(before, after);
}

XmlRpc::XmlRpcValue DispenserStatus::toXmlRpcValue(int) const
{
    XmlRpc::XmlRpcValue value = record().encode(*this);
    value[dispenserInfo_TAG] = quv::writtenInfo(dispenserInfo());
    return value;
}

bool DispenserStatus::hasSameFields(const MachineStatus &other) const
{
    const auto &that = static_cast<const DispenserStatus &>(other);
    return MachineStatus::hasSameFields(other) && slave_scan == that.slave_scan &&
           grav_sw_dose == that.grav_sw_dose && scale_mngm == that.scale_mngm;
}
