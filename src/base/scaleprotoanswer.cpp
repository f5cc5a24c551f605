// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/scaleprotoanswer.h"

#include "base/prototypes_p.h"

ScaleProtoAnswer::ScaleProtoAnswer() : ProtoAnswer(quv::ScaleType) {}

ScaleProtoAnswer::ScaleProtoAnswer(QList<QVariant> &list)
    : ProtoAnswer(quv::ScaleType, list),
      m_parameters(list)
{}

ScaleProtoAnswer::ScaleProtoAnswer(const XmlRpc::XmlRpcValue &value) : ProtoAnswer(quv::ScaleType, value) {}

ScaleProtoAnswer::ScaleProtoAnswer(const ProtoAnswer &answer) : ProtoAnswer(answer) {}

ScaleProtoAnswer *ScaleProtoAnswer::clone() const
{
    return new ScaleProtoAnswer(*this);
}

QList<QVariant> ScaleProtoAnswer::parameters() const
{
    return {};
}
