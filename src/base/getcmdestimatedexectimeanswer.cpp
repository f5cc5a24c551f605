// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcmdestimatedexectimeanswer.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(long long executionTime)
    : m_executionTime(executionTime)
{}

GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(const XmlRpc::XmlRpcValue &value)
{
    if (!DecodeXmlRpcValue(value, EXEC_TIME, m_executionTime))
        throw FW_Exception("DE01180", "GetCmdEstimatedExecTimeAnswer: cannot find execution time tag",
                           Q_FUNC_INFO);
}

GetCmdEstimatedExecTimeAnswer::GetCmdEstimatedExecTimeAnswer(QList<QVariant> &list) : ConfProtoAnswer(list)
{
    if (!DecodeVariantList(list, 0, m_executionTime))
        throw FW_Exception("DE01178", "GetCmdEstimatedExecTimeAnswer decoding failed: invalid QVariant value",
                           Q_FUNC_INFO);
}

GetCmdEstimatedExecTimeAnswer *GetCmdEstimatedExecTimeAnswer::clone() const
{
    return new GetCmdEstimatedExecTimeAnswer(*this);
}

bool GetCmdEstimatedExecTimeAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetCmdEstimatedExecTimeAnswer *>(other);
    return that && m_executionTime == that->m_executionTime;
}

XmlRpc::XmlRpcValue GetCmdEstimatedExecTimeAnswer::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value[EXEC_TIME] = static_cast<int>(m_executionTime);
    return value;
}
