// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerstatus.h"

#include "base/mixerinfo_p.h"
#include "base/record_p.h"
#include "status/machinestatus_p.h"
#include "status/mixerstatus_p.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_mixer.h>

#include <utility>

namespace {

const bool isRegistered = RegisterTravellingType<MixerStatus>("MixerStatus");

constexpr int requiredElements = 4;

/** All but the info, which is an object of its own. */
const quv::Record<MixerStatus> &record()
{
    using Status = MixerStatus;
    static const quv::Record<Status> flags({
        {Status::active_TAG, &Status::active, quv::noMixerActive, quv::noMixerActive},
        {Status::confMng_TAG, &Status::conf_mng, quv::noMixerConfMng, quv::noMixerConfMng},
        {Status::fwUpdate_TAG, &Status::fw_update, quv::noMixerFwUpdate, quv::noMixerFwUpdate},
        {Status::statsMng_TAG, &Status::stats_mng},
    });
    return flags;
}

} // namespace

MixerStatus::MixerStatus(const MixerInfo &info) : MachineStatus(&info) {}

MixerStatus::MixerStatus(const MixerInfo &info, bool isActive, bool managesConfiguration,
                         bool updatesFirmware, bool managesStatistics)
    : MachineStatus(&info, isActive, managesConfiguration, updatesFirmware, managesStatistics)
{}

MixerStatus::MixerStatus(const FW_Mixer &mixer, QString connection, bool isEnabled, bool isActive)
{
    MixerInfo info(&mixer, std::move(connection));
    info.enabled = isEnabled;
    setMachineInfo(&info);
    active = isActive;
}

MixerStatus::MixerStatus(QList<QVariant> list)
{
    if (list.size() < requiredElements)
        throw FW_Exception("DE03205", "MixerStatus: too few parameters", Q_FUNC_INFO);
    quv::readInfo<MixerInfo>(*this, quv::noMixerInfo, Q_FUNC_INFO, list, 0);
    record().decode(list.mid(1), *this, Q_FUNC_INFO);
}

MixerStatus::MixerStatus(const XmlRpc::XmlRpcValue &value, int)
{
    record().decode(value, *this, Q_FUNC_INFO);
    quv::readInfo<MixerInfo>(*this, quv::noMixerInfo, Q_FUNC_INFO, FindXmlRpcMember(value, mixerInfo_TAG));
}

MixerStatus *MixerStatus::clone() const
{
    return new MixerStatus(*this);
}

const MixerInfo *MixerStatus::mixerInfo() const
{
    return dynamic_cast<const MixerInfo *>(machineInfo());
}

bool MixerStatus::equalTo(const MixerStatus &other, bool strict, SerialDeviceType type) const
{
    if (strict)
        return *this == other;
    return type != SerialDeviceType::Mixer || quv::haveSameRelevance(*this, other);
}

bool MixerStatus::hasRelevantChanges(const QList<MixerStatus> &before, const QList<MixerStatus> &after,
                                     SerialDeviceType type)
{
    return quv::differ(before, after, type);
}

bool MixerStatus::SIDchanged(const QList<MixerStatus> &before, const QList<MixerStatus> &after)
{
    return quv::haveOtherSIDs(before, after);
}

XmlRpc::XmlRpcValue MixerStatus::toXmlRpcValue(int) const
{
    XmlRpc::XmlRpcValue value = record().encode(*this);
    value[mixerInfo_TAG] = quv::writtenInfo(mixerInfo());
    return value;
}
