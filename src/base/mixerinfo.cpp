// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/mixerinfo.h"

#include "base/mixerinfo_p.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_mixer.h>

#include <utility>

namespace {

const bool isRegistered = RegisterTravellingType<MixerInfo>("MixerInfo");

const quv::InfoRecords<MixerInfo> &records()
{
    static const quv::InfoRecords<MixerInfo> ofMixer(
        {{MixerInfo::mixerID_TAG, &MixerInfo::mixer_id, quv::noMixerID}});
    return ofMixer;
}

} // namespace

MixerInfo::MixerInfo()
{
    serialDeviceType = SerialDeviceType::Mixer;
}

MixerInfo::MixerInfo(const MachineInfo &machine, int mixerID) : MachineInfo(machine), mixer_id(mixerID)
{
    serialDeviceType = SerialDeviceType::Mixer;
}

MixerInfo::MixerInfo(const FW_Mixer *mixer, QString connection) : MachineInfo(mixer, std::move(connection))
{
    serialDeviceType = SerialDeviceType::Mixer;
    if (mixer)
        mixer_id = mixer->id();
}

MixerInfo::MixerInfo(const XmlRpc::XmlRpcValue &value) : MachineInfo(value)
{
    records().own.decode(value, *this, Q_FUNC_INFO);
    serialDeviceType = SerialDeviceType::Mixer; // where the struct does not tell
    decodeSerialDeviceType(value, serialDeviceType);
}

MixerInfo *MixerInfo::clone() const
{
    return new MixerInfo(*this);
}

XmlRpc::XmlRpcValue MixerInfo::toXmlRpcValue() const
{
    return records().whole.encode(*this);
}

bool MixerInfo::equalTo(const MachineInfo &other, bool strict) const
{
    return MachineInfo::equalTo(other, strict) &&
           records().own.equal(*this, static_cast<const MixerInfo &>(other)); // which is one, when equal
}
