// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "protocommand.h"

#include <QtCore/QStringList>

/**
 * A command that the machine's firmware carries out: its code stands in the catalogue, its integers come from
 * serialParameters, and its answer is a list of hexadecimal tokens.
 */
class QUVPROTOCOL_EXPORT SerialProtoCommand : public ProtoCommand
{
public:
    SerialProtoCommand();
    SerialProtoCommand(QString command, const FW_Machine *machine);
    SerialProtoCommand(QString command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    SerialProtoCommand(QString command, QList<QVariant> parameters, const FW_Machine *machine);

    SerialProtoCommand *clone() const override;

    using ProtoCommand::buildProtoAnswer;
    using ProtoCommand::setAnswer;
    bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error) override;
    bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error) override;
    bool setAnswer(QList<QVariant> &list, FW_DriverError *error) override;
    bool setAnswer(ProtoAnswer *answer, ProtoCommand *command, FW_DriverError *error) override;

    /** The serial address: a circuit's position for a command that addresses one; 0 is all circuits or none. */
    virtual int moduleID() const;
    virtual bool setModuleID(int moduleID); ///< always true

    /** The integers in firmware order; \a family is the machine's FW_Dispenser::CommandFamily. */
    virtual QList<int> serialParameters(int family) const;

    /** Replaces the typed answer by the one that is decoded of the tokens, the length token first. */
    virtual bool buildProtoAnswer(QStringList tokens, FW_DriverError *error);
    virtual bool setSerialAnswer(QStringList tokens, FW_DriverError *error);

protected:
    int m_moduleID = 0;
};
