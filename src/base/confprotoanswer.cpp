// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/confprotoanswer.h"

#include "base/prototypes_p.h"

ConfProtoAnswer::ConfProtoAnswer() : ProtoAnswer(quv::ConfigurationType) {}

ConfProtoAnswer::ConfProtoAnswer(QList<QVariant> &list)
    : ProtoAnswer(quv::ConfigurationType, list),
      m_parameters(list)
{}

ConfProtoAnswer::ConfProtoAnswer(const XmlRpc::XmlRpcValue &value)
    : ProtoAnswer(quv::ConfigurationType, value)
{}

ConfProtoAnswer::ConfProtoAnswer(const ProtoAnswer &answer) : ProtoAnswer(answer) {}

ConfProtoAnswer *ConfProtoAnswer::clone() const
{
    return new ConfProtoAnswer(*this);
}
