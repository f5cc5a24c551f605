// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/request.h"

#include "excerpt.h"
#include "requests/refusal.h"

#include "base/nccommand.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QLocale>

#include <optional>

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

std::optional<QString> commandName(const XmlRpcValue *value)
{
    QString name;
    if (value && DecodeXmlRpcValue(*value, name) && ProtoCommandList::existsCommand(name))
        return name;
    return std::nullopt;
}

} // namespace

// The leading text may be anything, so it is one only when a command's name follows and it is none itself.
Request::Request(const XmlRpcValue &params)
{
    const XmlRpcValue *first = FindXmlRpcElement(params, 0);
    if (!first)
        refuse(InvalidRequest, "DE03101", QStringLiteral("The request holds no command name"));
    if (!DecodeXmlRpcValue(*first, name))
        refuse(InvalidRequest, "DE03102",
               QStringLiteral("The command name must be a text, not %1").arg(described(*first)));
    int begin = 1;
    if (!ProtoCommandList::existsCommand(name)) {
        if (const auto second = commandName(FindXmlRpcElement(params, 1))) {
            session = name;
            name = *second;
            begin = 2;
        }
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
