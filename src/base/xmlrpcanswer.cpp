// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/xmlrpcanswer.h"

#include "base/guard_p.h"
#include "base/latin1_p.h"
#include "base/protoanswer.h"

#include <QuvFramework/fw_xmlrpc.h>

XmlRpcAnswer::XmlRpcAnswer() : m_retValue(0) {}

XmlRpcAnswer::XmlRpcAnswer(int retCode, QString info, XmlRpc::XmlRpcValue value)
    : m_retValue(value),
      m_retCode(retCode),
      m_infoMsg(info)
{}

XmlRpcAnswer::XmlRpcAnswer(int retCode, XmlRpc::XmlRpcValue value, QString command, long long time)
    : m_retValue(value),
      m_retCode(retCode),
      m_executionTime(time)
{
    setInfoMsgFromCommand(command, retCode);
}

XmlRpcAnswer::XmlRpcAnswer(int retCode, XmlRpc::XmlRpcValue value, const FW_ErrorList &errors,
                           QString command, long long time)
    : m_retValue(value),
      m_retCode(retCode),
      m_errors(errors),
      m_executionTime(time)
{
    setInfoMsgFromCommand(command, retCode);
}

XmlRpcAnswer::XmlRpcAnswer(int retCode, const FW_DriverError &error, QString command)
    : m_retValue(0),
      m_retCode(retCode)
{
    appendDriverError(error);
    setInfoMsgFromCommand(command, retCode);
}

XmlRpcAnswer::XmlRpcAnswer(int retCode, const FW_ErrorList &errors, QString command)
    : m_retValue(0),
      m_retCode(retCode),
      m_errors(errors)
{
    setInfoMsgFromCommand(command, retCode);
}

XmlRpcAnswer::XmlRpcAnswer(int retCode, QString info, const XmlRpc::XmlRpcValue *value, QString command)
    : m_retValue(value ? *value : XmlRpc::XmlRpcValue(0)),
      m_retCode(retCode),
      m_infoMsg(info)
{
    if (info.isEmpty())
        setInfoMsgFromCommand(command, retCode);
}

XmlRpcAnswer::XmlRpcAnswer(const XmlRpc::XmlRpcValue &value) : m_retValue(0)
{
    const auto refuse = [function = Q_FUNC_INFO](const char *code, const char *text) {
        throw FW_Exception(code, text, function);
    };
    if (value.getType() != XmlRpc::XmlRpcValue::TypeStruct)
        refuse("DE00355", "XmlRpcAnswer: expected struct type for xmlrpc type");
    if (!DecodeXmlRpcMember(value, xmlrpcRetValue_TAG, m_retValue))
        refuse("DE00356", "XmlRpcAnswer: expected ret_value value");
    if (!DecodeXmlRpcValue(value, retCode_TAG, m_retCode))
        refuse("DE00357", "XmlRpcAnswer: expected ret_code value");
    if (!DecodeXmlRpcValue(value, infoMsg_TAG, m_infoMsg))
        refuse("DE00358", "XmlRpcAnswer: expected info value");

    const XmlRpc::XmlRpcValue *errors = FindXmlRpcMember(value, errors_TAG);
    if (!errors)
        refuse("DE00366", "XmlRpcAnswer: expected errors value");
    if (errors->getType() != XmlRpc::XmlRpcValue::TypeArray)
        refuse("DE00365", "XmlRpcAnswer: bad type for errors value: Array expected");
    try {
        for (int i = 0; i < errors->size(); ++i)
            appendError((*errors)[i]);
    } catch (...) {
        quv::rethrowCurrentException("DE00364", "XmlRpcAnswer: errors during error list creation",
                                     Q_FUNC_INFO);
    }

    if (value.hasMember(executionTime_TAG) && !DecodeXmlRpcValue(value, executionTime_TAG, m_executionTime))
        refuse("DE00523", "XmlRpcAnswer: error decoding execution time value");
}

void XmlRpcAnswer::clear()
{
    *this = XmlRpcAnswer();
}

void XmlRpcAnswer::appendErrors(const FW_ErrorList &errors)
{
    m_errors.append(errors);
}

void XmlRpcAnswer::appendDriverError(const FW_DriverError &error)
{
    m_errors.append(error);
}

void XmlRpcAnswer::appendError(const XmlRpc::XmlRpcValue &error)
{
    m_errors.append(error);
}

void XmlRpcAnswer::setInfoMsgFromCommand(const QString &command, int retCode)
{
    if (retCode != 0) {
        m_infoMsg =
            QStringLiteral("%1 : %2").arg(command.isEmpty() ? QStringLiteral("Command failed!") : command,
                                          ProtoAnswer::getRetCodeMessage(retCode));
    } else if (!command.isEmpty()) {
        m_infoMsg = QStringLiteral("%1 %2").arg(command, QStringLiteral("command executed successfully!"));
    } else {
        m_infoMsg = QStringLiteral("Command executed successfully!");
    }
}

bool XmlRpcAnswer::isValidAnswer(const XmlRpc::XmlRpcValue &value)
{
    return value.getType() == XmlRpc::XmlRpcValue::TypeStruct && value.hasMember(retCode_TAG) &&
           value.hasMember(infoMsg_TAG) && value.hasMember(xmlrpcRetValue_TAG) && value.hasMember(errors_TAG);
}

XmlRpc::XmlRpcValue XmlRpcAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[retCode_TAG] = m_retCode;
    value[infoMsg_TAG] = quv::latin1(m_infoMsg);
    auto &retValue = value[xmlrpcRetValue_TAG];
    if (m_retValue.valid()) // a table of many members at times, so no copy but this one
        retValue = m_retValue;
    else
        retValue = 0;
    value[errors_TAG] = m_errors.toXmlRpcValue();
    value[executionTime_TAG] = static_cast<int>(m_executionTime);
    return value;
}

QStringList XmlRpcAnswer::toPrintableString() const
{
    QString head = ProtoAnswer::getRetCodeMessage(m_retCode);
    if (!m_errors.isEmpty())
        head += QLatin1String("Errors: ");
    QStringList lines(head);
    for (int i = 0; i < m_errors.size(); ++i)
        lines.append(m_errors[i]->toPrintableString());
    return lines;
}

QStringList XmlRpcAnswer::getDriverErrorsStrings() const
{
    QStringList lines;
    for (const FW_Error *error : m_errors.filterErrorTypes(FW_Error::Driver))
        lines.append(error->toPrintableString());
    return lines;
}

XmlRpc::XmlRpcValue ErrorAnswer::getDriverErrorReturn(int retCode, QString errorCode, QString errorText,
                                                      QString command)
{
    return getDriverErrorReturn(retCode, FW_DriverError(errorCode, errorText), command);
}

XmlRpc::XmlRpcValue ErrorAnswer::getDriverErrorReturn(int retCode, const FW_DriverError &error,
                                                      QString command)
{
    return XmlRpcAnswer(retCode, error, command).toXmlRpcValue();
}

XmlRpc::XmlRpcValue ErrorAnswer::getErrorReturn(int retCode, const FW_ErrorList &errors, QString command)
{
    return XmlRpcAnswer(retCode, errors, command).toXmlRpcValue();
}

XmlRpc::XmlRpcValue ErrorAnswer::getErrorReturn(int retCode, const XmlRpc::XmlRpcValue &value,
                                                const FW_ErrorList &errors, QString command)
{
    return XmlRpcAnswer(retCode, value, errors, command, 0).toXmlRpcValue();
}

XmlRpc::XmlRpcValue SuccessAnswer::getSuccessAnswer(const XmlRpc::XmlRpcValue &value, QString command,
                                                    long long time)
{
    return XmlRpcAnswer(0, value, command, time).toXmlRpcValue();
}

XmlRpc::XmlRpcValue SuccessAnswer::getSuccessAnswer(QString info, XmlRpc::XmlRpcValue *value, QString command)
{
    return XmlRpcAnswer(0, info, value, command).toXmlRpcValue();
}
