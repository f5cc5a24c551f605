// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/request.h"

#include "excerpt.h"
#include "machines/refusal.h"

#include "base/nccommand.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QLocale>

namespace quv {
namespace {

using XmlRpc::XmlRpcValue;

/// A value in words, for a text that refuses it; numbers to the last digit.
QString described(const XmlRpcValue &value)
{
    switch (value.getType()) {
    case XmlRpcValue::TypeBoolean:
        return QStringLiteral("a boolean");
    case XmlRpcValue::TypeInt:
        return QStringLiteral("the integer %1").arg(static_cast<const int &>(value));
    case XmlRpcValue::TypeDouble:
        return QStringLiteral("the double %1")
            .arg(QString::number(static_cast<const double &>(value), 'g', QLocale::FloatingPointShortest));
    case XmlRpcValue::TypeString:
        return QStringLiteral("a text");
    case XmlRpcValue::TypeDateTime:
        return QStringLiteral("a time");
    case XmlRpcValue::TypeBase64:
        return QStringLiteral("binary data");
    case XmlRpcValue::TypeArray:
        return QStringLiteral("an array");
    case XmlRpcValue::TypeStruct:
        return QStringLiteral("a struct");
    default:
        return QStringLiteral("nothing");
    }
}

bool isCommandName(const XmlRpcValue *value)
{
    QString name;
    return value && DecodeXmlRpcValue(*value, name) && ProtoCommandList::existsCommand(name);
}

QString nameIn(const XmlRpcValue *value)
{
    if (!value)
        refuse(InvalidRequest, "DE03101", QStringLiteral("The request holds no command name"));
    QString name;
    if (!DecodeXmlRpcValue(*value, name))
        refuse(InvalidRequest, "DE03102",
               QStringLiteral("The command name must be a text, not %1").arg(described(*value)));
    return name;
}

} // namespace

// The leading text may be anything, so it is one only when it is no command's name, and one follows or it is a session's.
Request::Request(const XmlRpcValue &params, const IsSession &isSession)
    : name(nameIn(FindXmlRpcElement(params, 0)))
{
    int begin = 1;
    const XmlRpcValue *second = FindXmlRpcElement(params, 1);
    if (!ProtoCommandList::existsCommand(name) && (isCommandName(second) || (isSession && isSession(name)))) {
        session = name;
        name = nameIn(second);
        begin = 2;
    }
    // Texts repeat the name, and one that nobody knows may be of any length.
    if (!ProtoCommandList::existsCommand(name))
        name = excerpt(name);
    arguments.setSize(0);
    for (int i = begin; i < params.size(); ++i)
        arguments[i - begin] = *FindXmlRpcElement(params, i);
}

bool Request::isWaiting() const
{
    const int structs = arguments.size() - 2;
    if (structs < 0 || structs > 2)
        return false;
    for (int i = 0; i < arguments.size(); ++i) {
        const XmlRpcValue &argument = *FindXmlRpcElement(arguments, i);
        const bool fits = i < structs ? FindXmlRpcMember(argument, NCCommand::CMD_PARAMETERS) ||
                                            FindXmlRpcMember(argument, NCCommand::LAST_ANSWER)
                                      : argument.getType() == XmlRpcValue::TypeInt;
        if (!fits)
            return false;
    }
    return true;
}

} // namespace quv
