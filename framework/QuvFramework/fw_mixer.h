// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

#include <QtCore/QMetaType>

/** A can mixer. */
class QUVFRAMEWORK_EXPORT FW_Mixer : public FW_Machine
{
public:
    FW_Mixer() = default;
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_Mixer(const XmlRpc::XmlRpcValue &value);

    FW_Mixer *clone() const override;
    SerialDeviceType machineType() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    bool equalTo(const FW_Machine &other) const override;

    bool operator==(const FW_Mixer &other) const;
    bool operator!=(const FW_Mixer &other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(FW_Mixer)
