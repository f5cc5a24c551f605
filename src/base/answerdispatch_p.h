// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

class ProtoAnswer;

namespace quv {

// The answer classes of commands that have no class of their own. They stand in folders that build on this one, so this
// one only declares how they are made; the factory, which knows all classes, defines it. The caller owns the answer.

ProtoAnswer *makeSerialAnswer(const QString &command, const XmlRpc::XmlRpcValue &value);
ProtoAnswer *makeSerialAnswer(const QString &command, QList<QVariant> &list);
ProtoAnswer *makeSerialAnswer(const QString &command, const QStringList &tokens);

ProtoAnswer *makeConfigurationAnswer(const QString &command, const XmlRpc::XmlRpcValue &value);
ProtoAnswer *makeConfigurationAnswer(const QString &command, QList<QVariant> &list);

} // namespace quv
