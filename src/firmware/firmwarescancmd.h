// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/**
 * FW_SCAN: asks which firmware runs on the slave boards; the answer is a FirmwareScanAnswer. A driver carries it out by
 * FirmwareScanStartCmd and FirmwareScanReadCmd, which the firmware knows by the same code. By their names the factory gives plain
 * commands.
 */
class QUVPROTOCOL_EXPORT FirmwareScanCmd : public quv::DescribedCommand<FirmwareScanCmd, SerialProtoCommand>
{
public:
    struct Description;

    // Arguments are not read.
    FirmwareScanCmd() = default;
    explicit FirmwareScanCmd(const XmlRpc::XmlRpcValue &value);
    explicit FirmwareScanCmd(QList<QVariant> list);
    explicit FirmwareScanCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FirmwareScanCmd(int) = delete;
    explicit FirmwareScanCmd(double) = delete;
    explicit FirmwareScanCmd(const char *) = delete;

    FirmwareScanCmd *clone() const override;
};
