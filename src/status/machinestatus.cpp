// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/machinestatus.h"

#include "base/cloned_p.h"
#include "status/machinestatus_p.h"

#include <typeinfo>

namespace {

DispenserInfo ownInfo(const DispenserStatus &, const MachineInfo &machine)
{
    return DispenserInfo(machine, 0, 0, false);
}
MixerInfo ownInfo(const MixerStatus &, const MachineInfo &machine)
{
    return MixerInfo(machine, 0);
}

/**
 * Of the device type, each with an info of its kind, without which it would not travel. One that is a plain MachineStatus has
 * nothing else under way.
 */
template <class Status>
QList<Status> statusesOf(SerialDeviceType type, const QList<MachineStatus *> &statuses)
{
    QList<Status> found;
    for (const MachineStatus *status : statuses) {
        if (!status || !status->machineInfo() || status->machineInfo()->serialDeviceType != type)
            continue;
        Status copy;
        if (const auto *whole = dynamic_cast<const Status *>(status))
            copy = *whole;
        else
            static_cast<MachineStatus &>(copy) = *status;
        if (!quv::infoOf(copy)) {
            const auto info = ownInfo(copy, *status->machineInfo());
            copy.setMachineInfo(&info);
        }
        found.append(copy);
    }
    return found;
}

} // namespace

namespace quv {

bool standsForNone(const XmlRpc::XmlRpcValue &value)
{
    int number = -1;
    return !value.valid() || (DecodeXmlRpcValue(value, number) && number == 0);
}

bool standsForNone(const QVariant &variant)
{
    int number = -1;
    return !variant.isValid() || (decodeVariant(variant, number) && number == 0);
}

XmlRpc::XmlRpcValue writtenInfo(const MachineInfo *info)
{
    return info ? info->toXmlRpcValue() : XmlRpc::XmlRpcValue(0);
}

int SIDof(const MachineStatus *status)
{
    return status && status->machineInfo() ? status->machineInfo()->SID : MachineInfo().SID;
}

bool haveSameRelevance(const MachineStatus &left, const MachineStatus &right)
{
    return MachineStatus::compareMachineInfo(left.machineInfo(), right.machineInfo(), false) &&
           left.active == right.active && left.conf_mng == right.conf_mng &&
           left.fw_update == right.fw_update;
}

} // namespace quv

MachineStatus::MachineStatus() = default;

MachineStatus::MachineStatus(const MachineInfo *ofMachine) : m_info(quv::cloned(ofMachine)) {}

MachineStatus::MachineStatus(const MachineInfo *ofMachine, bool isActive, bool managesConfiguration,
                             bool updatesFirmware, bool managesStatistics)
    : active(isActive),
      conf_mng(managesConfiguration),
      fw_update(updatesFirmware),
      stats_mng(managesStatistics),
      m_info(quv::cloned(ofMachine))
{}

MachineStatus::MachineStatus(const MachineStatus &other)
    : active(other.active),
      conf_mng(other.conf_mng),
      fw_update(other.fw_update),
      stats_mng(other.stats_mng),
      m_info(quv::cloned(other.machineInfo()))
{}

MachineStatus &MachineStatus::operator=(const MachineStatus &other)
{
    setMachineInfo(other.machineInfo());
    active = other.active;
    conf_mng = other.conf_mng;
    fw_update = other.fw_update;
    stats_mng = other.stats_mng;
    return *this;
}

MachineStatus::~MachineStatus() = default;

MachineStatus *MachineStatus::clone() const
{
    return new MachineStatus(*this);
}

void MachineStatus::setMachineInfo(const MachineInfo *info)
{
    m_info = quv::cloned(info);
}

void MachineStatus::clearMachineStatus()
{
    *this = MachineStatus();
}

bool MachineStatus::operator==(const MachineStatus &other) const
{
    return typeid(*this) == typeid(other) && hasSameFields(other);
}

bool MachineStatus::SIDchanged(const QList<MachineStatus *> &before, const QList<MachineStatus *> &after)
{
    return quv::haveOtherSIDs(before, after);
}

bool MachineStatus::compareMachineInfo(const MachineInfo *left, const MachineInfo *right, bool strict)
{
    return left && right ? left->equalTo(*right, strict) : left == right;
}

QList<DispenserStatus> MachineStatus::filterDispenserStatus(const QList<MachineStatus *> &statuses)
{
    return statusesOf<DispenserStatus>(SerialDeviceType::Dispenser, statuses);
}

QList<MixerStatus> MachineStatus::filterMixerStatus(const QList<MachineStatus *> &statuses)
{
    return statusesOf<MixerStatus>(SerialDeviceType::Mixer, statuses);
}

bool MachineStatus::hasSameFields(const MachineStatus &other) const
{
    return active == other.active && conf_mng == other.conf_mng && fw_update == other.fw_update &&
           stats_mng == other.stats_mng && compareMachineInfo(machineInfo(), other.machineInfo(), true);
}
