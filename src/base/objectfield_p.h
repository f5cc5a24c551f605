// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "base/fieldtype_p.h"

namespace quv {

/** Gives the field what \a make gives; false when that throws anything but an FW_Exception, which has words of its own. */
template <class T, class Make>
bool fillField(void *field, Make make)
{
    try {
        *static_cast<T *>(field) = make();
        return true;
    } catch (const FW_Exception &) {
        throw;
    } catch (...) {
        return false;
    }
}

template <class T>
Decoded readObject(const XmlRpc::XmlRpcValue &value, void *field)
{
    return fillField<T>(field, [&] { return T(value); }) ? Decoded::Good : Decoded::OtherType;
}

template <class T>
bool readObjectVariant(const QVariant &variant, void *field)
{
    return holds<T>(variant) && fillField<T>(field, [&] { return variant.value<T>(); });
}

template <class T>
void writeObject(const void *field, XmlRpc::XmlRpcValue &value)
{
    value = static_cast<const T *>(field)->toXmlRpcValue();
}

/** A T that travels as its own struct, and in a list also as the map that stands for it. */
template <class T>
constexpr FieldType objectType()
{
    return {nameOf<T>,      FieldType::Other, readObject<T>,         readObjectVariant<T>, writeObject<T>,
            equalFields<T>, resetField<T>,    ownRefusals<T>.data(), ownRefusals<T>.size()};
}

template <class T>
Decoded readObjects(const XmlRpc::XmlRpcValue &value, void *field)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        return Decoded::OtherType;
    QList<T> objects;
    objects.reserve(value.size());
    for (int i = 0; i < value.size(); ++i) {
        if (!fillField<QList<T>>(&objects, [&] { return objects << T(value[i]); }))
            return Decoded::BadElement;
    }
    *static_cast<QList<T> *>(field) = std::move(objects);
    return Decoded::Good;
}

/** Takes a list of T, and a list of variants that each hold one. */
template <class T>
bool readObjectsVariant(const QVariant &variant, void *field)
{
    if (variant.userType() == qMetaTypeId<QList<T>>()) {
        *static_cast<QList<T> *>(field) = variant.value<QList<T>>();
        return true;
    }
    if (variant.userType() != QMetaType::QVariantList)
        return false;
    QList<T> objects;
    for (const QVariant &element : variant.toList()) {
        T object;
        if (!readObjectVariant<T>(element, &object))
            return false;
        objects.append(object);
    }
    *static_cast<QList<T> *>(field) = std::move(objects);
    return true;
}

template <class T>
void writeObjects(const void *field, XmlRpc::XmlRpcValue &value)
{
    const auto &objects = *static_cast<const QList<T> *>(field);
    value.clear();
    value.setSize(objects.size());
    for (int i = 0; i < objects.size(); ++i)
        value[i] = objects.at(i).toXmlRpcValue();
}

/** A list of T that travels as an array of their structs. */
template <class T>
constexpr FieldType objectListType()
{
    return {"array of structs",    FieldType::Other,
            readObjects<T>,        readObjectsVariant<T>,
            writeObjects<T>,       equalFields<QList<T>>,
            resetField<QList<T>>,  ownRefusals<T>.data(),
            ownRefusals<T>.size(), true};
}

/** The same in an answer which in the list form reads its elements by itself. */
template <class T>
constexpr FieldType listedObjectsType()
{
    FieldType type = objectListType<T>();
    type.readVariant = nullptr;
    return type;
}

} // namespace quv
