// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotocommand.h"
#include "../base/describedcommand.h"

/** SET_SERIAL_NUMBER: gives the machine its serial number; carried out by the driver. */
class QUVPROTOCOL_EXPORT SetSerialNumberCmd
    : public quv::DescribedCommand<SetSerialNumberCmd, ConfProtoCommand>
{
public:
    struct Description;

    SetSerialNumberCmd() = default;
    /** Throws DE01780 for what is no serial number (FW_Machine::checkSerialNumber). */
    explicit SetSerialNumberCmd(QString serialNumber);
    /**
     * The serial number (string). Throws DE01774 for another type and DE01781 for what is no serial number; without it the base
     * refuses (DE00312).
     */
    explicit SetSerialNumberCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01775 and DE01782, and the base DE00313. */
    explicit SetSerialNumberCmd(QList<QVariant> list);
    explicit SetSerialNumberCmd(bool) = delete; // would be an XML-RPC value, as would the next two
    explicit SetSerialNumberCmd(int) = delete;
    explicit SetSerialNumberCmd(double) = delete;
    explicit SetSerialNumberCmd(const char *) = delete; // a QString or a value? say which

    SetSerialNumberCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QString serialNumber() const { return m_serialNumber; } ///< as it was given

private:
    QString m_serialNumber;
};
