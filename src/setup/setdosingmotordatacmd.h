// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

class FW_Dispenser;

/** SET_DM_DATA: writes down the serial number of a circuit's pump; carried out by the driver. */
class QUVPROTOCOL_EXPORT SetDosingMotorDataCmd
    : public quv::DescribedCommand<SetDosingMotorDataCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetDosingMotorDataCmd() = default;
    /**
     * The circuit's position (int) and the serial number (string). Throws DE00885 and DE00889 for another type, and DE00884 for a
     * position that the dispenser does not have; the base counts both before (DE00312).
     */
    SetDosingMotorDataCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list. Throws DE00890, DE00894 and DE00891, and the base DE00313. */
    SetDosingMotorDataCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    SetDosingMotorDataCmd *clone() const override;
    using DescribedCommand::setDefaults;

    int positionID() const { return m_positionID; }
    QString pumpSerialNumber() const { return m_pumpSerialNumber; }

private:
    int m_positionID = 0;
    QString m_pumpSerialNumber;
};
