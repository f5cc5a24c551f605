// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/fieldtype_p.h"

#include "base/decoding_p.h"
#include "base/latin1_p.h"

#include <limits>

namespace quv {

namespace {

using XmlRpc::XmlRpcValue;

template <class V>
Decoded read(const XmlRpcValue &value, void *field)
{
    return DecodeXmlRpcValue(value, *static_cast<V *>(field)) ? Decoded::Good : Decoded::OtherType;
}

template <class V>
Decoded readArray(const XmlRpcValue &value, void *field)
{
    const Decoded decoded = read<V>(value, field);
    return decoded != Decoded::Good && value.getType() == XmlRpcValue::TypeArray ? Decoded::BadElement
                                                                                 : decoded;
}

// A number without sign is read as one of 64 bits, which tells how those beyond an int travel.
bool storeUnsigned(unsigned long long number, void *field)
{
    if (number > std::numeric_limits<unsigned int>::max())
        return false;
    *static_cast<unsigned int *>(field) = static_cast<unsigned int>(number);
    return true;
}

Decoded readUnsigned(const XmlRpcValue &value, void *field)
{
    unsigned long long number = 0;
    return DecodeXmlRpcValue(value, number) && storeUnsigned(number, field) ? Decoded::Good
                                                                            : Decoded::OtherType;
}

bool readUnsignedVariant(const QVariant &variant, void *field)
{
    unsigned long long number = 0;
    return decodeVariant(variant, number) && storeUnsigned(number, field);
}

Decoded readDoubles(const XmlRpcValue &value, void *field)
{
    if (value.getType() != XmlRpcValue::TypeArray)
        return Decoded::OtherType;
    QList<double> numbers;
    numbers.reserve(value.size());
    for (int i = 0; i < value.size(); ++i) {
        double number = 0;
        if (!DecodeXmlRpcValue(value[i], number))
            return Decoded::BadElement;
        numbers.append(number);
    }
    *static_cast<QList<double> *>(field) = numbers;
    return Decoded::Good;
}

template <class V>
bool readVariant(const QVariant &variant, void *field)
{
    return decodeVariant(variant, *static_cast<V *>(field));
}

template <class V>
void writePlain(const void *field, XmlRpcValue &value)
{
    value = *static_cast<const V *>(field);
}

template <class V>
void writeVariant(const void *field, XmlRpcValue &value)
{
    value = EncodeXmlRpcVariant(QVariant::fromValue(*static_cast<const V *>(field)));
}

void writeDoubles(const void *field, XmlRpcValue &value)
{
    const auto &numbers = *static_cast<const QList<double> *>(field);
    value.clear();
    value.setSize(numbers.size());
    for (int i = 0; i < numbers.size(); ++i)
        value[i] = numbers.at(i);
}

void writeCutToInt(const void *field, XmlRpcValue &value)
{
    value = static_cast<int>(*static_cast<const long long *>(field));
}

void writeLatin1(const void *field, XmlRpcValue &value)
{
    value = latin1(*static_cast<const QString *>(field));
}

Decoded readDateTime(const XmlRpcValue &value, void *field)
{
    auto &time = *static_cast<QDateTime *>(field);
    QString text;
    const bool isTime =
        DecodeXmlRpcValue(value, text) ? dateTimeOf(text, time) : DecodeXmlRpcTimestamp(value, time, true);
    return isTime ? Decoded::Good : Decoded::OtherType;
}

void writeDateTime(const void *field, XmlRpcValue &value)
{
    value = EncodeXmlRpcText(static_cast<const QDateTime *>(field)->toUTC().toString(Qt::ISODateWithMs));
}

Decoded readVersion(const XmlRpcValue &value, void *field)
{
    QString text;
    return DecodeXmlRpcValue(value, text) && versionOf(text, *static_cast<QVersionNumber *>(field))
               ? Decoded::Good
               : Decoded::OtherType;
}

void writeVersion(const void *field, XmlRpcValue &value)
{
    value = EncodeXmlRpcText(static_cast<const QVersionNumber *>(field)->toString());
}

bool readValueVariant(const QVariant &variant, void *field)
{
    *static_cast<XmlRpcValue *>(field) = EncodeXmlRpcVariant(variant);
    return true;
}

bool sameValues(const void *left, const void *right)
{
    return SameXmlRpcValue(*static_cast<const XmlRpcValue *>(left), *static_cast<const XmlRpcValue *>(right));
}

template <class V, class Read, class Write>
constexpr FieldType describe(const char *name, Read reader, Write writer,
                             FieldType::Speed speed = FieldType::Other)
{
    return {name, speed, reader, readVariant<V>, writer, equalFields<V>, resetField<V>};
}

} // namespace

template <>
const FieldType &fieldType<bool>()
{
    static constexpr FieldType type = describe<bool>("bool", read<bool>, writePlain<bool>, FieldType::Flag);
    return type;
}

template <>
const FieldType &fieldType<int>()
{
    static constexpr FieldType type = describe<int>("int", read<int>, writePlain<int>, FieldType::Int);
    return type;
}

template <>
const FieldType &fieldType<unsigned int>()
{
    static constexpr FieldType type = {"int",
                                       FieldType::Other,
                                       readUnsigned,
                                       readUnsignedVariant,
                                       writeVariant<unsigned int>,
                                       equalFields<unsigned int>,
                                       resetField<unsigned int>};
    return type;
}

template <>
const FieldType &fieldType<long long>()
{
    static constexpr FieldType type = describe<long long>("int", read<long long>, writeVariant<long long>);
    return type;
}

template <>
const FieldType &fieldType<double>()
{
    static constexpr FieldType type = describe<double>("double", read<double>, writePlain<double>);
    return type;
}

template <>
const FieldType &fieldType<QString>()
{
    static constexpr FieldType type = describe<QString>("string", read<QString>, writeVariant<QString>);
    return type;
}

template <>
const FieldType &fieldType<QStringList>()
{
    static constexpr FieldType type =
        describe<QStringList>("array of strings", readArray<QStringList>, writeVariant<QStringList>);
    return type;
}

template <>
const FieldType &fieldType<QList<int>>()
{
    static constexpr FieldType type =
        describe<QList<int>>("array of ints", readArray<QList<int>>, writeVariant<QList<int>>);
    return type;
}

template <>
const FieldType &fieldType<QList<double>>()
{
    static constexpr FieldType type = describe<QList<double>>("array of doubles", readDoubles, writeDoubles);
    return type;
}

template <>
const FieldType &fieldType<unsigned long long>()
{
    static constexpr FieldType type =
        describe<unsigned long long>("int", read<unsigned long long>, writeVariant<unsigned long long>);
    return type;
}

template <>
const FieldType &fieldType<QByteArray>()
{
    static constexpr FieldType type =
        describe<QByteArray>("base64", read<QByteArray>, writeVariant<QByteArray>);
    return type;
}

template <>
const FieldType &fieldType<QDateTime>()
{
    static constexpr FieldType type = describe<QDateTime>("date and time", readDateTime, writeDateTime);
    return type;
}

template <>
const FieldType &fieldType<QVersionNumber>()
{
    static constexpr FieldType type = describe<QVersionNumber>("version", readVersion, writeVersion);
    return type;
}

template <>
const FieldType &fieldType<QHash<QString, QVariant>>()
{
    static constexpr FieldType type = describe<QHash<QString, QVariant>>(
        "struct", read<QHash<QString, QVariant>>, writeVariant<QHash<QString, QVariant>>);
    return type;
}

template <>
const FieldType &fieldType<QMap<QString, QVariant>>()
{
    static constexpr FieldType type = describe<QMap<QString, QVariant>>(
        "struct", read<QMap<QString, QVariant>>, writeVariant<QMap<QString, QVariant>>);
    return type;
}

template <>
const FieldType &fieldType<XmlRpcValue>()
{
    static constexpr FieldType type = {
        "any",      FieldType::Other,       read<XmlRpcValue>, readValueVariant, writePlain<XmlRpcValue>,
        sameValues, resetField<XmlRpcValue>};
    return type;
}

const FieldType &latin1Text()
{
    static constexpr FieldType type = describe<QString>("string", read<QString>, writeLatin1);
    return type;
}

const FieldType &cutToInt()
{
    static constexpr FieldType type = describe<long long>("int", read<long long>, writeCutToInt);
    return type;
}

} // namespace quv
