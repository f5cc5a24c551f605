// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/getcommandstatusanswer.h"

#include "catalogue/commandfacts.h"

#include <QuvFramework/fw_exception.h>

namespace {

CmdStatus decode(const XmlRpc::XmlRpcValue &value, const char *function)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeStruct)
        throw FW_Exception("DE00374", "GetCommandStatusAnswer decoding failed: invalid xml-rpc value",
                           function);
    return CmdStatus(value);
}

} // namespace

GetCommandStatusAnswer::GetCommandStatusAnswer(const CmdStatus &status) : m_cmdStatus(status) {}

GetCommandStatusAnswer::GetCommandStatusAnswer(const XmlRpc::XmlRpcValue &value)
    : m_cmdStatus(decode(value, Q_FUNC_INFO))
{}

GetCommandStatusAnswer::GetCommandStatusAnswer(QList<QVariant> &list) : ConfProtoAnswer(list)
{
    if (list.isEmpty() || !list.constFirst().canConvert<CmdStatus>())
        throw FW_Exception("DE00375", "GetCommandStatusAnswer decoding failed: invalid QVariant value",
                           Q_FUNC_INFO);
    setCmdStatus(list.constFirst());
}

GetCommandStatusAnswer *GetCommandStatusAnswer::clone() const
{
    return new GetCommandStatusAnswer(*this);
}

bool GetCommandStatusAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetCommandStatusAnswer *>(other);
    return that && m_cmdStatus == that->m_cmdStatus;
}

XmlRpc::XmlRpcValue GetCommandStatusAnswer::toXmlRpcValue() const
{
    return m_cmdStatus.toXmlRpcValue();
}

void GetCommandStatusAnswer::setCmdStatus(const QVariant &status)
{
    if (status.canConvert<CmdStatus>())
        m_cmdStatus = status.value<CmdStatus>();
}

QList<quv::MemberFacts> GetCommandStatusAnswer::memberFacts()
{
    return CmdStatus::memberFacts();
}
