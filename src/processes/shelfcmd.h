// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** SHELF_MOVE: moves the shelf that carries the can. */
class QUVPROTOCOL_EXPORT ShelfCmd : public quv::DescribedCommand<ShelfCmd, SerialProtoCommand>
{
public:
    struct Description;

    enum CommandType : int {
        CanPosition = 0, ///< the can at the nozzles
        LowPosition = 1
    };

    ShelfCmd() = default;                  ///< no movement yet
    ShelfCmd(int commandType, int height); ///< the height in millimetres
    /**
     * Command type and height (ints). A type above 1 may do without the height. Throws DE00811 and DE00812 for
     * other types of argument, DE00813 without a height that is needed; without any argument the base refuses (DE00312).
     */
    explicit ShelfCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00815, DE00816, DE00817 likewise; without any argument the base refuses (DE00313). */
    explicit ShelfCmd(QList<QVariant> list);
    explicit ShelfCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ShelfCmd(int) = delete;
    explicit ShelfCmd(double) = delete;
    explicit ShelfCmd(const char *) = delete;

    ShelfCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** Empty, and \a ok false, for no movement. */
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;
    /** The command type, then two digits of the height, or more of one above 60515; none of a negative one. */
    QList<int> serialParameters(int family) const override;
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;

    QString commandString() const override;
    TString actionString(bool detailed) const override;

    int commandType() const { return m_commandType; }
    int height() const { return m_height; } ///< millimetres

    static bool checkCommandType(int commandType); ///< 0 or 1

private:
    static constexpr int noMovement = -1;

    int m_commandType = noMovement;
    int m_height = 0;
};
