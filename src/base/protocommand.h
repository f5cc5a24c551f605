// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"
#include "tstring.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <memory>

class FW_DriverError;
class FW_Machine;
struct FW_Version;
class ProtoAnswer;
class XmlRpcAnswer;

/**
 * The root of all commands: a name of the catalogue with its arguments, a machine to work on, and the answers received.
 *
 * A command owns its answers and a private copy of the machine. Setters clone what they are handed, getters give out
 * what stays owned by the command. Constructors throw FW_Exception; operations that build an answer never throw, but
 * give false and fill their FW_DriverError, which may be null.
 *
 * A decoding constructor checks the base's side first: an XML-RPC value must be valid (DE00571), an array (DE00311) and
 * hold the catalogue's minimum of elements (DE00312), a list that minimum too (DE00313). More are never refused.
 */
class QUVPROTOCOL_EXPORT ProtoCommand
{
public:
    ProtoCommand();
    explicit ProtoCommand(QString command);
    explicit ProtoCommand(int type);
    ProtoCommand(int type, QString command, const FW_Machine *machine);
    ProtoCommand(int type, QString command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    ProtoCommand(int type, QString command, QList<QVariant> parameters, const FW_Machine *machine);
    ProtoCommand(const ProtoCommand &other); ///< deep
    ProtoCommand &operator=(const ProtoCommand &) = delete;

    virtual ~ProtoCommand();
    virtual ProtoCommand *clone() const; ///< owned by the caller

    /** The arguments as a client gives them. */
    virtual QList<QVariant> parameters() const;
    /** The arguments as XML-RPC: an array, or of RES_FILE_MNGM the struct alone; \a ok, when given, becomes true. */
    virtual XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const;

    /** Stores a clone; null, and an answer that cannot be cloned, only clears. Never throws. */
    virtual void setProtoAnswer(ProtoAnswer *answer);
    virtual ProtoAnswer *getProtoAnswer(bool *ok = nullptr) const;
    virtual XmlRpcAnswer *getXmlRpcAnswer(bool *ok = nullptr) const;

    /** The parameter list of the XML-RPC call, see buildXmlRpcValue. */
    virtual XmlRpc::XmlRpcValue toXmlRpcValue(QString leading, bool *ok = nullptr) const;

    /** Replaces the typed answer by the one that is built of the value or list. */
    virtual bool buildProtoAnswer(const XmlRpc::XmlRpcValue &value, FW_DriverError *error);
    virtual bool buildProtoAnswer(QList<QVariant> &list, FW_DriverError *error);

    /**
     * Takes the envelope of an answer. A return code other than 0 leaves the envelope alone, without a typed answer. With
     * \a async the typed answer is the ticket, otherwise what buildProtoAnswer makes.
     */
    virtual bool setAnswer(const XmlRpc::XmlRpcValue &value, bool async, FW_DriverError *error);
    virtual bool setAnswer(QList<QVariant> &list, FW_DriverError *error);
    /** Stores a clone of the answer; the command beside it is not read. */
    virtual bool setAnswer(ProtoAnswer *answer, ProtoCommand *command, FW_DriverError *error);

    virtual bool isSupportedCommand(const FW_Version &version) const;
    /** Milliseconds; 0 when nothing is known. */
    virtual long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const;

    virtual QString commandString() const; ///< a short label in the past tense for logs, in English
    virtual TString actionString(bool detailed) const; ///< what is going on, for displays

    QString command() const { return m_command; }
    /** Renames the command; false, and the old name stays, for a name outside the catalogue. */
    bool setCommand(const QString &command);
    const FW_Machine *machine() const { return m_machine.get(); }
    int protoType() const { return m_protoType; } ///< 0 plain, 1 serial, 2 configuration, 3 scale
    void clearProtoAnswer();

    /** True when \a count reaches the catalogue's minimum; otherwise \a error, when given, says what is missing. */
    bool checkParameters(const QString &command, int count, QString *error) const;

    /**
     * The array that is the parameter list of one call: \a leading when it is not empty, the command name, then the
     * elements of \a parameters. An empty name, or parameters that are no array, give an empty array and \a ok false.
     */
    static XmlRpc::XmlRpcValue buildXmlRpcValue(QString command, XmlRpc::XmlRpcValue parameters,
                                                QString leading, bool *ok = nullptr);
    static XmlRpc::XmlRpcValue buildXmlRpcValue(QString command, QString leading, bool *ok = nullptr);

protected:
    // Both forget what the members point at; they serve at construction only.
    void clear();
    void setDefaults();

    /** Replaces the typed answer by what \a make gives. \a code and \a text stand for what is no FW_Exception. */
    template <class Make>
    bool replaceProtoAnswer(const char *code, const char *text, FW_DriverError *error, Make make);
    /** All of setAnswer from an envelope but the code and the text. */
    bool takeXmlRpcAnswer(const XmlRpc::XmlRpcValue &value, bool async, const char *code, const char *text,
                          FW_DriverError *error);
    /** All of setAnswer from an answer but the codes. */
    bool takeProtoAnswer(const ProtoAnswer *answer, const char *nullCode, const char *cloneCode,
                         FW_DriverError *error);

    QString m_command;
    std::unique_ptr<ProtoAnswer> m_protoAnswer;
    std::unique_ptr<XmlRpcAnswer> m_xmlRpcAnswer;
    std::unique_ptr<FW_Machine> m_machine;
    QList<QVariant> m_parameters;
    int m_protoType = 0;
};
