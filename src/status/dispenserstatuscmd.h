// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/serialprotocommand.h"

/** GET_STATUS: asks a dispenser's firmware what the machine is doing; the answer is a DispenserStatusAnswer. */
class QUVPROTOCOL_EXPORT DispenserStatusCmd : public SerialProtoCommand
{
public:
    DispenserStatusCmd();
    explicit DispenserStatusCmd(int positionID); ///< a circuit's position; 0 is the machine
    /** One optional int, the position ID. Throws DE00298 for another type. */
    explicit DispenserStatusCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00300 for another type. */
    explicit DispenserStatusCmd(QList<QVariant> list);
    DispenserStatusCmd(const DispenserStatusCmd &) = default;
    explicit DispenserStatusCmd(bool) = delete; // would read as a position, as would the next two
    explicit DispenserStatusCmd(double) = delete;
    explicit DispenserStatusCmd(const char *) = delete;

    DispenserStatusCmd *clone() const override;
    void setDefaults();

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    using SerialProtoCommand::setAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error) override;

private:
    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive);
};
