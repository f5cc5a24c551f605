// SPDX-License-Identifier: LGPL-3.0-or-later
#include "masterdata/getdeviceparamsanswer.h"

#include <QuvFramework/fw_xmlrpc.h>

GetDeviceParamsAnswer::GetDeviceParamsAnswer(const XmlRpc::XmlRpcValue &value)
    : ConfProtoAnswer(value),
      m_deviceParams(value)
{}

GetDeviceParamsAnswer::GetDeviceParamsAnswer(QList<QVariant> &list)
    : ConfProtoAnswer(list),
      m_deviceParams(EncodeXmlRpcVariant(QVariant(list)))
{}

GetDeviceParamsAnswer *GetDeviceParamsAnswer::clone() const
{
    return new GetDeviceParamsAnswer(*this);
}

bool GetDeviceParamsAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetDeviceParamsAnswer *>(other);
    return that && SameXmlRpcValue(m_deviceParams, that->m_deviceParams);
}

XmlRpc::XmlRpcValue GetDeviceParamsAnswer::toXmlRpcValue() const
{
    return m_deviceParams;
}
