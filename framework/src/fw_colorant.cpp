// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_colorant.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_metatype.h>

namespace {

const bool isColorantRegistered = RegisterTravellingType<FW_Colorant>("FW_Colorant");

} // namespace

QList<int> FW_Colorant::getPositionsID(const FW_Dispenser &machine, bool onlyEnabled) const
{
    QList<int> positions;
    for (const FW_Canister &canister : machine.canisters()) {
        if (canister.colorantCode() == m_code && (canister.isEnabled() || !onlyEnabled))
            positions += canister.getCircuitPositions(onlyEnabled);
    }
    return positions;
}

FW_Colorant::FW_Colorant(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_Colorant::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_Colorant::operator==(const FW_Colorant &other) const
{
    return quv::haveSameMembers(*this, other);
}
