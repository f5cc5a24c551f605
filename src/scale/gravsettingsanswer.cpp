// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/gravsettingsanswer.h"

GravSettingsAnswer::GravSettingsAnswer(const QMap<int, GravimetricSettings> &settings)
    : GravSettingsBase(settings)
{}

GravSettingsAnswer::GravSettingsAnswer(const XmlRpc::XmlRpcValue &value)
    : ConfProtoAnswer(value),
      GravSettingsBase(value)
{}

GravSettingsAnswer::GravSettingsAnswer(QList<QVariant> &list) : ConfProtoAnswer(list), GravSettingsBase(list)
{}

GravSettingsAnswer *GravSettingsAnswer::clone() const
{
    return new GravSettingsAnswer(*this);
}

bool GravSettingsAnswer::equalTo(const ProtoAnswer *other) const
{
    const auto *that = dynamic_cast<const GravSettingsAnswer *>(other);
    return that && *this == *that;
}

XmlRpc::XmlRpcValue GravSettingsAnswer::toXmlRpcValue() const
{
    return xmlrpcvalue(nullptr);
}
