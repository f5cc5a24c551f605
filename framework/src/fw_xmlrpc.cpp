// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QDate>
#include <QtCore/QTextCodec>
#include <QtCore/QTime>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <initializer_list>
#include <limits>
#include <type_traits>

using XmlRpc::XmlRpcValue;

namespace {

template <class T>
const T *scalar(const XmlRpcValue &value, XmlRpcValue::Type type)
{
    return value.getType() == type ? &static_cast<const T &>(value) : nullptr;
}

const int *asInt(const XmlRpcValue &value)
{
    return scalar<int>(value, XmlRpcValue::TypeInt);
}

/** Stores an int in a type that holds it, when it is not below the type's least value. */
template <class T>
bool storeInt(const XmlRpcValue &value, T &out)
{
    const int *number = asInt(value);
    if (!number || (std::is_unsigned_v<T> && *number < 0))
        return false;
    out = static_cast<T>(*number);
    return true;
}

template <class List, class Element>
bool storeArray(const XmlRpcValue &value, List &out)
{
    if (value.getType() != XmlRpcValue::TypeArray)
        return false;
    List list;
    list.reserve(value.size());
    for (int i = 0; i < value.size(); ++i) {
        Element element{};
        if (!DecodeXmlRpcValue(value[i], element))
            return false;
        list.append(element);
    }
    out = list;
    return true;
}

template <class Map>
bool storeStruct(const XmlRpcValue &value, Map &out)
{
    if (value.getType() != XmlRpcValue::TypeStruct)
        return false;
    Map map;
    for (const auto &[name, member] : value)
        map.insert(DecodeXmlRpcText(name), DecodeXmlRpcVariant(member));
    out = map;
    return true;
}

QDateTime fromBrokenDownTime(const std::tm &broken, Qt::TimeSpec spec)
{
    const QDate date(broken.tm_year + 1900, broken.tm_mon + 1, broken.tm_mday);
    const QTime time(broken.tm_hour, broken.tm_min, broken.tm_sec);
    return time.isValid() ? QDateTime(date, time, spec) : QDateTime(); // Qt would take midnight instead
}

std::tm toBrokenDownTime(const QDateTime &dateTime)
{
    const QDate date = dateTime.date();
    const QTime time = dateTime.time();
    std::tm broken{};
    broken.tm_year = date.year() - 1900;
    broken.tm_mon = date.month() - 1;
    broken.tm_mday = date.day();
    broken.tm_hour = time.hour();
    broken.tm_min = time.minute();
    broken.tm_sec = time.second();
    return broken;
}

XmlRpcValue emptyArray()
{
    XmlRpcValue value;
    value.setSize(0);
    return value;
}

XmlRpcValue emptyStruct()
{
    XmlRpcValue value;
    value.begin(); // makes the value a struct without members
    return value;
}

template <class List, class Convert>
XmlRpcValue arrayOf(const List &list, Convert convert)
{
    XmlRpcValue array = emptyArray();
    array.setSize(list.size());
    for (int i = 0; i < list.size(); ++i)
        array[i] = convert(list.at(i));
    return array;
}

/** \a nothing stands for what XML-RPC cannot hold. */
XmlRpcValue encoded(const QVariant &variant, const XmlRpcValue &nothing);

template <class Map>
void encodeMembers(XmlRpcValue &value, const Map &map, const XmlRpcValue &nothing = XmlRpcValue(0))
{
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        value[EncodeXmlRpcText(it.key())] = encoded(it.value(), nothing);
}

template <class Map>
XmlRpcValue structOf(const Map &map, const XmlRpcValue &nothing = XmlRpcValue(0))
{
    XmlRpcValue value = emptyStruct();
    encodeMembers(value, map, nothing);
    return value;
}

XmlRpcValue wholeNumber(qlonglong number)
{
    if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
        return XmlRpcValue(static_cast<int>(number));
    return XmlRpcValue(static_cast<double>(number));
}

XmlRpcValue binary(QByteArray bytes)
{
    return XmlRpcValue(static_cast<void *>(bytes.data()), bytes.size());
}

void makeStruct(XmlRpcValue &value)
{
    if (value.getType() != XmlRpcValue::TypeStruct)
        value = emptyStruct();
}

void setMember(XmlRpcValue &value, const QString &key, const XmlRpcValue &member)
{
    makeStruct(value);
    value[EncodeXmlRpcText(key)] = member;
}

/** Takes a whole number that no int holds, and which is therefore written as a double. */
template <class T>
bool storeWideNumber(const XmlRpcValue &value, T &out)
{
    using Int = std::numeric_limits<int>;
    constexpr double limit =
        std::is_unsigned_v<T> ? 18446744073709551616.0 : 9223372036854775808.0; // 2^64, 2^63
    constexpr double least = std::is_unsigned_v<T> ? 0 : -limit;
    const double *number = scalar<double>(value, XmlRpcValue::TypeDouble);
    if (number && std::is_unsigned_v<T> && *number == limit) { // as which the greatest are written
        out = std::numeric_limits<T>::max();
        return true;
    }
    if (!number || std::trunc(*number) != *number || *number < least || *number >= limit ||
        (*number >= Int::min() && *number <= Int::max()))
        return false;
    out = static_cast<T>(*number);
    return true;
}

bool isAscii(char character)
{
    return (static_cast<unsigned char>(character) & 0x80U) == 0;
}

/** The element of a list when its stored type is one of the given ones. */
const QVariant *elementOfType(const QList<QVariant> &list, int index, std::initializer_list<int> types)
{
    if (index < 0 || index >= list.size())
        return nullptr;
    const QVariant &element = list.at(index);
    for (int type : types) {
        if (element.userType() == type)
            return &element;
    }
    return nullptr;
}

XmlRpcValue encoded(const QVariant &variant, const XmlRpcValue &nothing)
{
    const auto elementOf = [&](const QVariant &element) { return encoded(element, nothing); };
    switch (variant.userType()) {
    case QMetaType::Bool:
        return XmlRpcValue(variant.toBool());
    case QMetaType::Int:
        return XmlRpcValue(variant.toInt());
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return wholeNumber(variant.toLongLong());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return variant.toULongLong() <= static_cast<qulonglong>(std::numeric_limits<int>::max())
                   ? XmlRpcValue(variant.toInt())
                   : XmlRpcValue(static_cast<double>(variant.toULongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return XmlRpcValue(variant.toDouble());
    case QMetaType::QChar:
    case QMetaType::QString:
        return XmlRpcValue(EncodeXmlRpcText(variant.toString()));
    case QMetaType::QByteArray:
        return binary(variant.toByteArray());
    case QMetaType::QDateTime: {
        const QDateTime dateTime = variant.toDateTime().toLocalTime();
        if (!dateTime.isValid())
            break;
        std::tm time = toBrokenDownTime(dateTime);
        return XmlRpcValue(&time);
    }
    case QMetaType::QStringList:
        return arrayOf(variant.toStringList(),
                       [](const QString &text) { return XmlRpcValue(EncodeXmlRpcText(text)); });
    case QMetaType::QVariantList:
        return arrayOf(variant.toList(), elementOf);
    case QMetaType::QVariantMap:
        return structOf(variant.toMap(), nothing);
    case QMetaType::QVariantHash:
        return structOf(variant.toHash(), nothing);
    default:
        break;
    }
    if (variant.userType() == qMetaTypeId<QList<int>>())
        return arrayOf(variant.value<QList<int>>(), [](int number) { return XmlRpcValue(number); });
    if (variant.userType() >= QMetaType::User && variant.canConvert<QVariantMap>())
        return structOf(variant.value<QVariantMap>(), nothing);
    if (variant.userType() >= QMetaType::User && variant.canConvert<QVariantList>())
        return arrayOf(variant.value<QVariantList>(), elementOf);
    return nothing;
}

constexpr std::initializer_list<int> wholeNumberTypes = {QMetaType::Int, QMetaType::UInt, QMetaType::LongLong,
                                                         QMetaType::ULongLong};

} // namespace

QString DecodeXmlRpcText(const std::string &bytes)
{
    const int size = static_cast<int>(bytes.size());
    // nearly all texts of the protocol are, and need no codec
    if (std::all_of(bytes.begin(), bytes.end(), isAscii))
        return QString::fromLatin1(bytes.data(), size);
    static QTextCodec *const utf8 = QTextCodec::codecForMib(106);
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString text = utf8->toUnicode(bytes.data(), size, &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? text
                                                                : QString::fromLatin1(bytes.data(), size);
}

std::string EncodeXmlRpcText(const QString &text)
{
    return text.toStdString();
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, bool &out)
{
    const bool *flag = scalar<bool>(value, XmlRpcValue::TypeBoolean);
    if (flag)
        out = *flag;
    return flag;
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, int &out)
{
    return storeInt(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, unsigned int &out)
{
    return storeInt(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, long long &out)
{
    return storeInt(value, out) || storeWideNumber(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, unsigned long long &out)
{
    return storeInt(value, out) || storeWideNumber(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, double &out)
{
    const double *number = scalar<double>(value, XmlRpcValue::TypeDouble);
    if (number)
        out = *number;
    return number || storeInt(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, QString &out)
{
    const std::string *text = scalar<std::string>(value, XmlRpcValue::TypeString);
    if (text)
        out = DecodeXmlRpcText(*text);
    return text;
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, QByteArray &out)
{
    const auto *bytes = scalar<XmlRpcValue::BinaryData>(value, XmlRpcValue::TypeBase64);
    if (bytes)
        out = QByteArray(bytes->data(), static_cast<int>(bytes->size()));
    return bytes;
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, QStringList &out)
{
    return storeArray<QStringList, QString>(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, QList<int> &out)
{
    return storeArray<QList<int>, int>(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, QHash<QString, QVariant> &out)
{
    return storeStruct(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, QMap<QString, QVariant> &out)
{
    return storeStruct(value, out);
}

bool DecodeXmlRpcValue(const XmlRpcValue &value, XmlRpcValue &out)
{
    // the value may be a part of the target
    const XmlRpcValue copy(value); // NOLINT(performance-unnecessary-copy-initialization)
    out = copy;
    return true;
}

const XmlRpcValue *FindXmlRpcMember(const XmlRpcValue &value, const std::string &key)
{
    // operator[] would insert a missing member, through a const value as well
    return value.getType() == XmlRpcValue::TypeStruct && value.hasMember(key) ? &value[key] : nullptr;
}

const XmlRpcValue *FindXmlRpcElement(const XmlRpcValue &value, int index)
{
    return value.getType() == XmlRpcValue::TypeArray && index >= 0 && index < value.size() ? &value[index]
                                                                                           : nullptr;
}

bool SameXmlRpcValue(const XmlRpcValue &left, const XmlRpcValue &right)
{
    if (left.getType() != right.getType())
        return false;
    switch (left.getType()) {
    case XmlRpcValue::TypeArray:
        if (left.size() != right.size())
            return false;
        for (int i = 0; i < left.size(); ++i) {
            if (!SameXmlRpcValue(left[i], right[i]))
                return false;
        }
        return true;
    case XmlRpcValue::TypeStruct:
        return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                          [](const auto &a, const auto &b) {
                              return a.first == b.first && SameXmlRpcValue(a.second, b.second);
                          });
    default:
        return left == right;
    }
}

bool DecodeXmlRpcMember(const XmlRpcValue &value, const QString &key, XmlRpcValue &out)
{
    return DecodeXmlRpcValue(value, key, out);
}

bool DecodeXmlRpcTimestamp(const XmlRpcValue &value, QDateTime &out, bool utc)
{
    const Qt::TimeSpec spec = utc ? Qt::UTC : Qt::LocalTime;
    QDateTime dateTime;
    if (const auto *time = scalar<std::tm>(value, XmlRpcValue::TypeDateTime)) {
        dateTime = fromBrokenDownTime(*time, spec);
    } else if (const auto *text = scalar<std::string>(value, XmlRpcValue::TypeString)) {
        dateTime = QDateTime::fromString(DecodeXmlRpcText(*text), Qt::ISODateWithMs);
        if (dateTime.timeSpec() == Qt::LocalTime)
            dateTime.setTimeSpec(spec);
    }
    if (!dateTime.isValid())
        return false;
    out = dateTime;
    return true;
}

bool DecodeXmlRpcTimestamp(const XmlRpcValue &value, const QString &key, QDateTime &out, bool utc)
{
    const XmlRpcValue *member = FindXmlRpcMember(value, EncodeXmlRpcText(key));
    return member && DecodeXmlRpcTimestamp(*member, out, utc);
}

QVariant DecodeXmlRpcVariant(const XmlRpcValue &value)
{
    switch (value.getType()) {
    case XmlRpcValue::TypeInvalid:
        break;
    case XmlRpcValue::TypeBoolean:
        return QVariant(static_cast<const bool &>(value));
    case XmlRpcValue::TypeInt:
        return QVariant(static_cast<const int &>(value));
    case XmlRpcValue::TypeDouble:
        return QVariant(static_cast<const double &>(value));
    case XmlRpcValue::TypeString:
        return QVariant(DecodeXmlRpcText(static_cast<const std::string &>(value)));
    case XmlRpcValue::TypeDateTime:
        return QVariant(fromBrokenDownTime(static_cast<const std::tm &>(value), Qt::LocalTime));
    case XmlRpcValue::TypeBase64: {
        QByteArray bytes;
        DecodeXmlRpcValue(value, bytes);
        return QVariant(bytes);
    }
    case XmlRpcValue::TypeArray: {
        QList<QVariant> list;
        list.reserve(value.size());
        for (int i = 0; i < value.size(); ++i)
            list.append(DecodeXmlRpcVariant(value[i]));
        return QVariant(list);
    }
    case XmlRpcValue::TypeStruct: {
        QMap<QString, QVariant> map;
        DecodeXmlRpcValue(value, map);
        return QVariant(map);
    }
    }
    return QVariant();
}

XmlRpcValue EncodeXmlRpcVariant(const QVariant &variant)
{
    return encoded(variant, XmlRpcValue(0));
}

XmlRpcValue EncodeXmlRpcObject(const QVariant &variant)
{
    return encoded(variant, XmlRpcValue());
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, bool member)
{
    setMember(value, key, XmlRpcValue(member));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, int member)
{
    setMember(value, key, XmlRpcValue(member));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, double member)
{
    setMember(value, key, XmlRpcValue(member));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, const QString &member)
{
    setMember(value, key, XmlRpcValue(EncodeXmlRpcText(member)));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, const QStringList &member)
{
    setMember(value, key, EncodeXmlRpcVariant(member));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, const QList<int> &member)
{
    setMember(value, key, arrayOf(member, [](int number) { return XmlRpcValue(number); }));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, const QHash<QString, QVariant> &member)
{
    setMember(value, key, structOf(member));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QString &key, const XmlRpcValue &member)
{
    // the member may be a part of the value
    const XmlRpcValue copy(member); // NOLINT(performance-unnecessary-copy-initialization)
    setMember(value, key, copy.valid() ? copy : XmlRpcValue(0));
}

void EncodeXmlRpcValue(XmlRpcValue &value, const QMap<QString, QVariant> &members)
{
    makeStruct(value);
    encodeMembers(value, members);
}

bool DecodeVariantList(const QList<QVariant> &list, int index, bool &out)
{
    const QVariant *element = elementOfType(list, index, {QMetaType::Bool});
    if (element)
        out = element->toBool();
    return element;
}

bool DecodeVariantList(const QList<QVariant> &list, int index, int &out)
{
    long long number = 0;
    if (!DecodeVariantList(list, index, number) || number < std::numeric_limits<int>::min() ||
        number > std::numeric_limits<int>::max())
        return false;
    out = static_cast<int>(number);
    return true;
}

bool DecodeVariantList(const QList<QVariant> &list, int index, long long &out)
{
    const QVariant *element = elementOfType(list, index, wholeNumberTypes);
    bool ok = false;
    const qlonglong number = element ? element->toLongLong(&ok) : 0;
    const bool wrapped = element && number < 0 && element->userType() == QMetaType::ULongLong;
    if (!ok || wrapped)
        return false;
    out = number;
    return true;
}

bool DecodeVariantList(const QList<QVariant> &list, int index, QStringList &out)
{
    if (const QVariant *texts = elementOfType(list, index, {QMetaType::QStringList})) {
        out = texts->toStringList();
        return true;
    }
    const QVariant *elements = elementOfType(list, index, {QMetaType::QVariantList});
    if (!elements)
        return false;
    QStringList texts;
    for (const QVariant &element : elements->toList()) {
        if (element.userType() != QMetaType::QString)
            return false;
        texts.append(element.toString());
    }
    out = texts;
    return true;
}

bool DecodeVariantList(const QList<QVariant> &list, int index, QList<int> &out)
{
    if (const QVariant *numbers = elementOfType(list, index, {qMetaTypeId<QList<int>>()})) {
        out = numbers->value<QList<int>>();
        return true;
    }
    const QVariant *elements = elementOfType(list, index, {QMetaType::QVariantList});
    if (!elements)
        return false;
    const QList<QVariant> variants = elements->toList();
    QList<int> numbers;
    for (int i = 0; i < variants.size(); ++i) {
        int number = 0;
        if (!DecodeVariantList(variants, i, number))
            return false;
        numbers.append(number);
    }
    out = numbers;
    return true;
}

QList<QVariant> intListToVariant(const QList<int> &numbers)
{
    QList<QVariant> variants;
    variants.reserve(numbers.size());
    for (int number : numbers)
        variants.append(number);
    return variants;
}
