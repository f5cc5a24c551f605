// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/answerdispatch_p.h"

#include "base/confprotoanswer.h"
#include "base/serialprotoanswer.h"

namespace quv {

// Answer classes of commands without a class of their own go here, chosen by the command's row. None exists yet: see
// pendingAnswers.

ProtoAnswer *makeSerialAnswer(const QString &, const XmlRpc::XmlRpcValue &value)
{
    return new SerialProtoAnswer(value);
}

ProtoAnswer *makeSerialAnswer(const QString &, QList<QVariant> &list)
{
    return new SerialProtoAnswer(list);
}

ProtoAnswer *makeSerialAnswer(const QString &, const QStringList &tokens)
{
    return new SerialProtoAnswer(tokens);
}

ProtoAnswer *makeConfigurationAnswer(const QString &, const XmlRpc::XmlRpcValue &value)
{
    return new ConfProtoAnswer(value);
}

ProtoAnswer *makeConfigurationAnswer(const QString &, QList<QVariant> &list)
{
    return new ConfProtoAnswer(list);
}

} // namespace quv
