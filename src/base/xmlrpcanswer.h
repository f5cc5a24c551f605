// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_errorlist.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * The envelope of every answer over XML-RPC: a struct with the members "ret_code" (int), "info" (string), "ret_value"
 * (what the answer writes; 0 when there is none), "errors" (array) and "exec_time" (int, milliseconds, optional).
 */
class QUVPROTOCOL_EXPORT XmlRpcAnswer
{
public:
    static constexpr char retCode_TAG[] = "ret_code";
    static constexpr char infoMsg_TAG[] = "info";
    static constexpr char xmlrpcRetValue_TAG[] = "ret_value";
    static constexpr char errors_TAG[] = "errors";
    static constexpr char executionTime_TAG[] = "exec_time";

    XmlRpcAnswer();
    XmlRpcAnswer(int retCode, QString info, XmlRpc::XmlRpcValue value);
    XmlRpcAnswer(int retCode, QString info,
                 const XmlRpc::XmlRpcValue *value) = delete; // a pointer reads as a bool
    /** \a time is in milliseconds; the message follows from \a command and \a retCode, as in the next three. */
    XmlRpcAnswer(int retCode, XmlRpc::XmlRpcValue value, QString command, long long time);
    XmlRpcAnswer(int retCode, XmlRpc::XmlRpcValue value, const FW_ErrorList &errors, QString command,
                 long long time);
    XmlRpcAnswer(int retCode, const FW_DriverError &error, QString command);
    XmlRpcAnswer(int retCode, const FW_ErrorList &errors, QString command);
    /** The value when the pointer is not null; \a info when it is not empty, else the message of \a command. */
    XmlRpcAnswer(int retCode, QString info, const XmlRpc::XmlRpcValue *value, QString command);
    /** Decodes an envelope. Throws DE00355 to DE00358, DE00364 to DE00366, DE00523, or what decoding an error throws. */
    explicit XmlRpcAnswer(const XmlRpc::XmlRpcValue &value);

    void clear();

    const XmlRpc::XmlRpcValue &xmlrpcRetValue() const { return m_retValue; }
    int retCode() const { return m_retCode; } ///< -1 while the envelope is not filled
    QString infoMsg() const { return m_infoMsg; }
    const FW_ErrorList &errors() const { return m_errors; }
    long long executionTime() const { return m_executionTime; } ///< milliseconds

    void setXmlrpcRetValue(const XmlRpc::XmlRpcValue &value) { m_retValue = value; }
    void setRetCode(int retCode) { m_retCode = retCode; }
    void setInfoMsg(const QString &info) { m_infoMsg = info; }
    void setErrors(const FW_ErrorList &errors) { m_errors = errors; }
    void setExecutionTime(long long time) { m_executionTime = time; }

    void appendErrors(const FW_ErrorList &errors);
    void appendDriverError(const FW_DriverError &error);
    void appendError(const XmlRpc::XmlRpcValue &error); ///< decodes one error; throws FW_Exception

    /** "NAME command executed successfully!", or the name and the text of the return code. */
    void setInfoMsgFromCommand(const QString &command, int retCode);

    static bool isValidAnswer(const XmlRpc::XmlRpcValue &value);

    /** The envelope. The time is cut to 32 bits. */
    XmlRpc::XmlRpcValue toXmlRpcValue() const;
    /** The text of the return code, then a line an error. */
    QStringList toPrintableString() const;
    /** A line for each error that the driver raised. */
    QStringList getDriverErrorsStrings() const;

private:
    XmlRpc::XmlRpcValue m_retValue;
    int m_retCode = -1;
    QString m_infoMsg;
    FW_ErrorList m_errors;
    long long m_executionTime = 0;
};

/** Ready envelopes of a failure. */
class QUVPROTOCOL_EXPORT ErrorAnswer
{
public:
    ErrorAnswer() = delete;

    static XmlRpc::XmlRpcValue getDriverErrorReturn(int retCode, QString errorCode, QString errorText,
                                                    QString command);
    static XmlRpc::XmlRpcValue getDriverErrorReturn(int retCode, const FW_DriverError &error,
                                                    QString command);
    static XmlRpc::XmlRpcValue getErrorReturn(int retCode, const FW_ErrorList &errors, QString command);
    static XmlRpc::XmlRpcValue getErrorReturn(int retCode, const XmlRpc::XmlRpcValue &value,
                                              const FW_ErrorList &errors, QString command);
};

/** Ready envelopes of a success, with the return code 0. */
class QUVPROTOCOL_EXPORT SuccessAnswer
{
public:
    SuccessAnswer() = delete;

    /** \a time is in milliseconds. */
    static XmlRpc::XmlRpcValue getSuccessAnswer(const XmlRpc::XmlRpcValue &value, QString command,
                                                long long time);
    static XmlRpc::XmlRpcValue getSuccessAnswer(QString info, XmlRpc::XmlRpcValue *value, QString command);
};
