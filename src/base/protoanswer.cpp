// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/protoanswer.h"

#include <QuvFramework/fw_exception.h>

#include <array>

ProtoAnswer::ProtoAnswer(int type) : m_protoType(type) {}

ProtoAnswer::ProtoAnswer(int type, QList<QVariant> &) : m_protoType(type) {}

ProtoAnswer::ProtoAnswer(int type, const XmlRpc::XmlRpcValue &value) : m_protoType(type)
{
    if (!value.valid())
        throw FW_Exception("DE00909", "ProtoAnswer decoding failed: invalid xml-rpc type", Q_FUNC_INFO);
}

ProtoAnswer::~ProtoAnswer() = default;

ProtoAnswer *ProtoAnswer::clone() const
{
    return new ProtoAnswer(*this);
}

bool ProtoAnswer::equalTo(const ProtoAnswer *other) const
{
    return other && m_protoType == other->m_protoType;
}

XmlRpc::XmlRpcValue ProtoAnswer::toXmlRpcValue() const
{
    return XmlRpc::XmlRpcValue(0);
}

QString ProtoAnswer::getRetCodeMessage(int retCode)
{
    static const std::array<const char *, 9> messages = {
        "Success!",
        "Failed! Xml-rpc command invalid for Driver.",
        "Failed! Serial answer invalid for Driver.",
        "Failed! Serial command invalid for firmware.",
        "Failed! Command not executed due to errors on firmware.",
        "Failed! Command not executed due to errors on the driver configuration.",
        "Failed! Command not executed due to errors in Driver internal procedures.",
        "Command has been interrupted!",
        "Failed! Command not executed due to generic errors.",
    };
    const auto index = static_cast<std::size_t>(retCode);
    return QString::fromLatin1(index < messages.size() ? messages[index] : "Failed! Generic error.");
}
