// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_gravimetricsettings.h>
#include <QuvFramework/fw_metatype.h>

namespace {

const bool isRegistered = RegisterTravellingType<GravimetricSettings>("GravimetricSettings");

} // namespace

GravimetricSettings::GravimetricSettings(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

GravimetricSettings::GravimetricSettings(const XmlRpc::XmlRpcValue &value, int /*pumpType*/,
                                         int /*pumpValue*/)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue GravimetricSettings::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool GravimetricSettings::operator==(const GravimetricSettings &other) const
{
    return quv::haveSameMembers(*this, other);
}
