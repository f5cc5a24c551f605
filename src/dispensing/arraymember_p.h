// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "dispensing/formula_p.h"

#include <QuvFramework/fw_xmlrpc.h>

namespace quv {

/** A member that is an array of elements of one type; what is wrong with the array and with an element has each its code. */
struct ArrayMember
{
    const char *key = "";
    Refusal array;
    Refusal element;
};

template <class T>
QList<T> decodedArray(const XmlRpc::XmlRpcValue &value, const ArrayMember &member, const char *function)
{
    const XmlRpc::XmlRpcValue *array = FindXmlRpcMember(value, member.key);
    if (!array || array->getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception(member.array.code, member.array.text, function);
    QList<T> elements;
    elements.reserve(array->size());
    for (int i = 0; i < array->size(); ++i) {
        T element{};
        if (!DecodeXmlRpcValue(*array, i, element))
            throw FW_Exception(member.element.code, member.element.text, function);
        elements.append(element);
    }
    return elements;
}

template <class T>
XmlRpc::XmlRpcValue encodedArray(const QList<T> &elements)
{
    XmlRpc::XmlRpcValue array;
    array.setSize(elements.size());
    for (int i = 0; i < elements.size(); ++i)
        array[i] = elements.at(i);
    return array;
}

} // namespace quv
