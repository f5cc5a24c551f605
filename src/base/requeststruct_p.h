// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/refusal_p.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <xmlrpcpp/XmlRpcValue.h>

// Many requests have one argument, a struct with what they are about.

namespace quv {

/** The argument, which is refused when it is no struct. */
inline const XmlRpc::XmlRpcValue &structArgument(const XmlRpc::XmlRpcValue &request, const Refusal &otherType,
                                                 const char *function)
{
    const XmlRpc::XmlRpcValue *argument = FindXmlRpcElement(request, 0);
    if (!argument || argument->getType() != XmlRpc::XmlRpcValue::TypeStruct)
        throwRefusal(otherType, function);
    return *argument;
}

/** A member that must be there. */
inline const XmlRpc::XmlRpcValue &memberOf(const XmlRpc::XmlRpcValue &object, const char *key,
                                           const Refusal &missing, const char *function)
{
    const XmlRpc::XmlRpcValue *member = FindXmlRpcMember(object, key);
    if (!member)
        throwRefusal(missing, function);
    return *member;
}

/** A member that must be there and be an array. */
inline const XmlRpc::XmlRpcValue &arrayMember(const XmlRpc::XmlRpcValue &object, const char *key,
                                              const Refusal &missing, const Refusal &otherType,
                                              const char *function)
{
    const XmlRpc::XmlRpcValue &member = memberOf(object, key, missing, function);
    if (member.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throwRefusal(otherType, function);
    return member;
}

/** A member that must be there and be a struct. */
inline const XmlRpc::XmlRpcValue &structMember(const XmlRpc::XmlRpcValue &object, const char *key,
                                               const Refusal &missing, const Refusal &otherType,
                                               const char *function)
{
    const XmlRpc::XmlRpcValue &member = memberOf(object, key, missing, function);
    if (member.getType() != XmlRpc::XmlRpcValue::TypeStruct)
        throwRefusal(otherType, function);
    return member;
}

/** A member that leaves \a field alone when it is not there. */
template <class T>
void readMember(const XmlRpc::XmlRpcValue &object, const char *key, T &field, const Refusal &otherType,
                const char *function)
{
    const XmlRpc::XmlRpcValue *member = FindXmlRpcMember(object, key);
    if (member && !DecodeXmlRpcValue(*member, field))
        throwRefusal(otherType, function);
}

} // namespace quv
