// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <memory>

class FW_DriverError;
class FW_Machine;
class ProtoAnswer;
class ProtoCommand;
class XmlRpcAnswer;

/**
 * A command for the method "EXEC_NC": the command itself, the last answer that the caller has, and how often and how long the
 * driver is to look. The library only carries the last three.
 *
 * The request array holds the optional leading text, the command name, a struct "cmd_parameters" (only with arguments), a
 * struct "last_answer" (only with an answer), the interval and the timeout (ints, milliseconds).
 */
class QUVPROTOCOL_EXPORT NCCommand
{
public:
    static constexpr char CMD_PARAMETERS[] = "cmd_parameters";
    static constexpr char LAST_ANSWER[] = "last_answer";

    NCCommand() = default;
    // All keep clones. Any exception but FW_Exception becomes a code of the constructor's own.
    NCCommand(ProtoCommand *command, ProtoAnswer *lastAnswer, int interval,
              int timeout); ///< throws DE01417, DE01418
    NCCommand(QString name, ProtoAnswer *lastAnswer, int interval, int timeout, const FW_Machine *machine);
    NCCommand(QString name, QList<QVariant> arguments, ProtoAnswer *lastAnswer, int interval, int timeout,
              const FW_Machine *machine);
    /** \a lastAnswer is what the command builds its answer of. */
    NCCommand(QString name, QList<QVariant> arguments, QList<QVariant> lastAnswer, int interval, int timeout,
              const FW_Machine *machine);
    /** Decodes what follows the name in a request. Throws DE00755 (no array), DE00756 (last answer) or what those throw. */
    NCCommand(QString name, XmlRpc::XmlRpcValue &args, const FW_Machine *machine);
    NCCommand(const NCCommand &other);
    NCCommand &operator=(const NCCommand &other);
    ~NCCommand();

    NCCommand *clone() const; ///< owned by the caller

    QString command() const; ///< the null string without a command
    const ProtoCommand *protoCommand() const { return m_protoCommand.get(); }
    void setProtoCommand(const ProtoCommand *command); ///< keeps a clone; null changes nothing
    const ProtoAnswer *lastAnswer() const { return m_lastAnswer.get(); }
    int interval() const { return m_interval; } ///< milliseconds
    int timeout() const { return m_timeout; }   ///< milliseconds

    // Forwarded to the command; null, false or an invalid value without one.
    ProtoAnswer *getProtoAnswer(bool *ok = nullptr) const;
    XmlRpcAnswer *getXmlRpcAnswer(bool *ok = nullptr) const;
    bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error);
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const;

    /** The request array; without a command an invalid value and \a ok false. */
    XmlRpc::XmlRpcValue toXmlRpcValue(QString leading, bool *ok = nullptr) const;

private:
    std::unique_ptr<ProtoCommand> m_protoCommand;
    std::unique_ptr<ProtoAnswer> m_lastAnswer;
    int m_interval = 500;
    int m_timeout = 10000;
};
