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
    return {nameOf<T>,      FieldType::Other, readObject<T>, readObjectVariant<T>,
            writeObject<T>, equalFields<T>,   resetField<T>};
}

} // namespace quv
