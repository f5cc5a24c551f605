// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "base/fieldtype_p.h"
#include "base/refusal_p.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <xmlrpcpp/XmlRpcValue.h>

// Many requests have one argument, a struct with what they are about.

namespace quv {

/** The argument, which is refused when it is no struct. */
inline const XmlRpc::XmlRpcValue &structArgument(const XmlRpc::XmlRpcValue &request, const Refusal &otherType,
                                                 const char *function, int index = 0)
{
    const XmlRpc::XmlRpcValue *argument = FindXmlRpcElement(request, index);
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

/** A member of this type that must be there. Throws \a notMade for a list with an element that cannot be made, or memory. */
template <class T>
T typedMember(const XmlRpc::XmlRpcValue &object, const char *key, const Refusal &absent,
              const Refusal &notMade, const char *function)
{
    return madeOrRefused(notMade, function, [&] {
        T field{};
        const Decoded decoded = fieldType<T>().read(memberOf(object, key, absent, function), &field);
        if (decoded != Decoded::Good)
            throwRefusal(decoded == Decoded::BadElement ? notMade : absent, function);
        return field;
    });
}

/** Such a member of the struct that is the argument at \a index. */
template <class T>
T memberArgument(const XmlRpc::XmlRpcValue &request, int index, const char *key, const Refusal &absent,
                 const Refusal &notMade, const char *function)
{
    return typedMember<T>(structArgument(request, absent, function, index), key, absent, notMade, function);
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
