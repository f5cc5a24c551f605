// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmwarescancmd.h"

/** FW_SCAN_START: starts the scan, of one module or with module 0 of all. Its answer tells nothing. */
class QUVPROTOCOL_EXPORT FirmwareScanStartCmd : public FirmwareScanCmd
{
public:
    FirmwareScanStartCmd();
    explicit FirmwareScanStartCmd(const XmlRpc::XmlRpcValue &value);
    explicit FirmwareScanStartCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FirmwareScanStartCmd(int) = delete;
    explicit FirmwareScanStartCmd(double) = delete;
    explicit FirmwareScanStartCmd(const char *) = delete;

    FirmwareScanStartCmd *clone() const override;

    using FirmwareScanCmd::buildProtoAnswer;
    bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;

    QList<int> serialParameters(int family) const override; ///< 1
    /** Of one module on any machine; of all, for each enabled circuit of a dispenser. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
};
