// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_calibrationprofiles.h>
#include <QuvFramework/fw_metatype.h>

namespace {

const bool isCalibrationProfilesRegistered =
    RegisterTravellingType<FW_CalibrationProfiles>("FW_CalibrationProfiles");

} // namespace

FW_CalibrationProfiles::FW_CalibrationProfiles(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_CalibrationProfiles::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

const FW_DosingMotor *FW_CalibrationProfiles::getPumpByID(int motorID) const
{
    for (const FW_DosingMotor &pump : m_pumps) {
        if (motorID != 0 && pump.motorID() == motorID)
            return &pump;
    }
    return nullptr;
}

const FW_DosingMotor *FW_CalibrationProfiles::getDefaultPumpByType(int pumpType, int pumpValue,
                                                                   int index) const
{
    for (const FW_DosingMotor &pump : m_pumps) {
        if (pump.pumpType() == pumpType && pump.pumpValue() == pumpValue && index-- == 0)
            return &pump;
    }
    return nullptr;
}
