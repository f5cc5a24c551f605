// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/getscaleconfiganswer.h"

GetScaleConfigAnswer::GetScaleConfigAnswer(const FW_Scale &scale) : ScaleConfigBase(scale) {}

GetScaleConfigAnswer::GetScaleConfigAnswer(const XmlRpc::XmlRpcValue &value)
    : ConfProtoAnswer(value),
      ScaleConfigBase(value)
{}

GetScaleConfigAnswer::GetScaleConfigAnswer(QList<QVariant> &list)
    : ConfProtoAnswer(list),
      ScaleConfigBase(list)
{}

GetScaleConfigAnswer *GetScaleConfigAnswer::clone() const
{
    return new GetScaleConfigAnswer(*this);
}

bool GetScaleConfigAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GetScaleConfigAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue GetScaleConfigAnswer::toXmlRpcValue() const
{
    return xmlrpcvalue(nullptr);
}
