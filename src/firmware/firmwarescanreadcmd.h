// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmwarescancmd.h"

/** FW_SCAN_READ: reads what the scan has found; the answer is a FirmwareScanAnswer. */
class QUVPROTOCOL_EXPORT FirmwareScanReadCmd : public FirmwareScanCmd
{
public:
    FirmwareScanReadCmd();
    explicit FirmwareScanReadCmd(const XmlRpc::XmlRpcValue &value);
    explicit FirmwareScanReadCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FirmwareScanReadCmd(int) = delete;
    explicit FirmwareScanReadCmd(double) = delete;
    explicit FirmwareScanReadCmd(const char *) = delete;

    FirmwareScanReadCmd *clone() const override;

    QList<int> serialParameters(int family) const override; ///< 2
};
