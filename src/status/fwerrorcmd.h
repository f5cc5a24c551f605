// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/**
 * GET_ERROR_PKT: asks the firmware for one packet of its buffer of errors; the answer is an FwErrorAnswer. The packet index
 * goes to the firmware only and never travels between client and driver, where the command arrives with index 0. With that
 * index the firmware takes it for CLEAR_ERRORS.
 */
class QUVPROTOCOL_EXPORT FwErrorCmd : public quv::DescribedCommand<FwErrorCmd, SerialProtoCommand>
{
public:
    struct Description;

    FwErrorCmd() = default; ///< index 0
    explicit FwErrorCmd(int packetIndex);
    /** One optional int, the packet index. Throws DE00465 for another type. */
    explicit FwErrorCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00466 for another type. */
    explicit FwErrorCmd(QList<QVariant> list);
    explicit FwErrorCmd(bool) = delete; // would read as an index, as would the next two
    explicit FwErrorCmd(double) = delete;
    explicit FwErrorCmd(const char *) = delete;

    FwErrorCmd *clone() const override;

    QList<QVariant> parameters() const override;                              ///< empty
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override; ///< empty
    QList<int> serialParameters(int family) const override;

    int packetIndex() const { return m_packetIndex; }

private:
    int m_packetIndex = 0;
};
