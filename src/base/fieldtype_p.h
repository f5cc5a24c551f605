// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/refusal_p.h"

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVersionNumber>

#include <xmlrpcpp/XmlRpcValue.h>

#include <cstddef>
#include <utility>

namespace quv {

enum class Decoded {
    Good,
    OtherType,
    BadElement ///< an array, but not of the elements that it should have
};

/** How fields of one C++ type travel. There is one object a type, and one engine that reads and writes through it. */
struct FieldType
{
    enum Speed { Flag, Int, Other }; ///< the first two are most members of most records, and have short cuts

    const char *name = ""; ///< as people call it
    Speed speed = Other;
    Decoded (*read)(const XmlRpc::XmlRpcValue &value, void *field) = nullptr;
    bool (*readVariant)(const QVariant &variant, void *field) = nullptr;
    void (*write)(const void *field, XmlRpc::XmlRpcValue &value) = nullptr;
    bool (*equal)(const void *left, const void *right) = nullptr;
    void (*reset)(void *field) = nullptr; ///< to the empty value: false, 0 or nothing
    /** Of an object, or of the elements of a list of objects: when its own class refuses it, and with what. */
    const std::pair<const char *, Refusal> *ownRefusals = nullptr;
    std::size_t ownRefusalCount = 0;
    bool isList = false; ///< of objects
};

/** The type of a field; families specialise it for what only they know. */
template <class V>
const FieldType &fieldType();

template <>
const FieldType &fieldType<bool>();
template <>
const FieldType &fieldType<int>();
template <>
const FieldType &fieldType<unsigned int>(); ///< beyond an int it travels as a double
template <>
const FieldType &fieldType<long long>();
template <>
const FieldType &fieldType<double>();
template <>
const FieldType &fieldType<QString>();
template <>
const FieldType &fieldType<QStringList>();
template <>
const FieldType &fieldType<QList<int>>();
template <>
const FieldType &fieldType<XmlRpc::XmlRpcValue>();
template <>
const FieldType &fieldType<QList<double>>();
template <>
const FieldType &fieldType<unsigned long long>(); ///< likewise
template <>
const FieldType &fieldType<QByteArray>();
template <>
const FieldType &
fieldType<QDateTime>(); ///< travels as text, in UTC and with milliseconds; an XML-RPC time is taken too
template <>
const FieldType &fieldType<QVersionNumber>(); ///< travels as text
template <>
const FieldType &fieldType<QHash<QString, QVariant>>();
template <>
const FieldType &fieldType<QMap<QString, QVariant>>();

/** A long long that is cut to 32 bits when it is written. */
const FieldType &cutToInt();
/** A text that is written as Latin-1, in which a character outside it becomes "?". */
const FieldType &latin1Text();

template <class V>
bool equalFields(const void *left, const void *right)
{
    return *static_cast<const V *>(left) == *static_cast<const V *>(right);
}

template <class V>
void resetField(void *field)
{
    *static_cast<V *>(field) = V();
}

} // namespace quv
