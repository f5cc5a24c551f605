// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_mixer.h>

#include <memory>

namespace {

const bool isMixerRegistered = RegisterTravellingType<FW_Mixer>("FW_Mixer");

} // namespace

FW_Mixer *FW_Mixer::clone() const
{
    return std::make_unique<FW_Mixer>(*this).release();
}

SerialDeviceType FW_Mixer::machineType() const
{
    return SerialDeviceType::Mixer;
}

FW_Mixer::FW_Mixer(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_Mixer::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_Mixer::operator==(const FW_Mixer &other) const
{
    return quv::haveSameMembers(*this, other);
}

bool FW_Mixer::equalTo(const FW_Machine &other) const
{
    const auto *mixer = dynamic_cast<const FW_Mixer *>(&other);
    return mixer && *this == *mixer;
}
