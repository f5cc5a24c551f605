// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/fieldtype_p.h"
#include "base/objectlist_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace quv {

// Over XML-RPC most arguments of these commands are the one member of a struct; in a list they stand for themselves.

/** Makes \a argument the struct. */
template <class T>
void writeMemberArgument(XmlRpc::XmlRpcValue &argument, const char *key, const T &field)
{
    fieldType<T>().write(&field, argument[key]);
}

/** A list that holds objects each by itself, or all of them in one variant. */
template <class T>
QList<T> objectsOf(const QList<QVariant> &list, const Refusal &otherType, const Refusal &notMade,
                   const char *function)
{
    const bool inOne = list.size() == 1 && !holds<T>(list.constFirst());
    return decodedList<T>(inOne ? list.constFirst() : QVariant(list), otherType, notMade, function);
}

} // namespace quv
