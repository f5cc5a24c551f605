// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/**
 * SLAVE_JUMP: makes a slave board jump between its boot loader and its application. The slave's address is the serial address. It is
 * read, but never written: what the command writes of itself is the jump alone, which no constructor takes for a whole request.
 */
class QUVPROTOCOL_EXPORT SlaveJumpCmd : public quv::DescribedCommand<SlaveJumpCmd, SerialProtoCommand>
{
public:
    struct Description;

    SlaveJumpCmd() = default; ///< address 0, jump type -1
    /** Throws DE00940 for an address and DE00941 for a jump type that there is not. */
    SlaveJumpCmd(int slaveAddress, int jumpType);
    /**
     * The slave's address and the jump type (ints). Throws DE00945 and DE00944 for an address of another type and one that there is not,
     * DE00947 and DE00946 for a jump type likewise; without both the base refuses (DE00312).
     */
    explicit SlaveJumpCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00949 to DE00952 likewise; without both the base refuses (DE00313). */
    explicit SlaveJumpCmd(QList<QVariant> list);
    explicit SlaveJumpCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit SlaveJumpCmd(int) = delete;
    explicit SlaveJumpCmd(double) = delete;
    explicit SlaveJumpCmd(const char *) = delete;

    SlaveJumpCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<QVariant> parameters() const override;                              ///< the jump type alone
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override; ///< likewise
    QList<int> serialParameters(int family) const override;                   ///< likewise

    int jumpType() const { return m_jumpType; }

    static bool checkJumpType(int jumpType); ///< 2 or 3

private:
    int m_jumpType = -1;
};
