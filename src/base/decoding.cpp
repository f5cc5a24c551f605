// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/decoding_p.h"

#include <cmath>
#include <limits>

namespace quv {

namespace {

template <class T>
bool decodeByFramework(const QVariant &variant, T &out)
{
    return DecodeVariantList({variant}, 0, out);
}

bool isKeyed(const QVariant &variant)
{
    return variant.userType() == QMetaType::QVariantHash || variant.userType() == QMetaType::QVariantMap;
}

} // namespace

bool decodeVariant(const QVariant &variant, bool &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, int &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, unsigned int &out)
{
    long long number = 0;
    if (!decodeVariant(variant, number) || number < 0 || number > std::numeric_limits<unsigned int>::max())
        return false;
    out = static_cast<unsigned int>(number);
    return true;
}

bool decodeVariant(const QVariant &variant, long long &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, double &out)
{
    long long whole = 0;
    if (variant.userType() == QMetaType::Double || variant.userType() == QMetaType::Float)
        out = variant.toDouble();
    else if (decodeVariant(variant, whole))
        out = static_cast<double>(whole);
    else
        return false;
    return true;
}

bool decodeVariant(const QVariant &variant, QString &out)
{
    if (variant.userType() != QMetaType::QString)
        return false;
    out = variant.toString();
    return true;
}

bool decodeVariant(const QVariant &variant, QStringList &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, QList<int> &out)
{
    return decodeByFramework(variant, out);
}

bool decodeVariant(const QVariant &variant, QList<double> &out)
{
    if (variant.userType() == qMetaTypeId<QList<double>>()) {
        out = variant.value<QList<double>>();
        return true;
    }
    if (variant.userType() != QMetaType::QVariantList)
        return false;
    QList<double> numbers;
    for (const QVariant &element : variant.toList()) {
        double number = 0;
        if (!decodeVariant(element, number))
            return false;
        numbers.append(number);
    }
    out = numbers;
    return true;
}

bool decodeVariant(const QVariant &variant, unsigned long long &out)
{
    if (variant.userType() == QMetaType::ULongLong) {
        out = variant.toULongLong();
        return true;
    }
    long long number = 0;
    if (!decodeVariant(variant, number))
        return variant.userType() == QMetaType::Double &&
               DecodeXmlRpcValue(EncodeXmlRpcVariant(variant), out);
    if (number < 0)
        return false;
    out = static_cast<unsigned long long>(number);
    return true;
}

bool decodeVariant(const QVariant &variant, QByteArray &out)
{
    if (variant.userType() != QMetaType::QByteArray)
        return false;
    out = variant.toByteArray();
    return true;
}

bool decodeVariant(const QVariant &variant, QDateTime &out)
{
    if (variant.userType() == QMetaType::QDateTime) {
        out = variant.toDateTime();
        return true;
    }
    QString text;
    return decodeVariant(variant, text) && dateTimeOf(text, out);
}

bool decodeVariant(const QVariant &variant, QVersionNumber &out)
{
    if (variant.userType() == qMetaTypeId<QVersionNumber>()) {
        out = variant.value<QVersionNumber>();
        return true;
    }
    QString text;
    return decodeVariant(variant, text) && versionOf(text, out);
}

bool decodeVariant(const QVariant &variant, QHash<QString, QVariant> &out)
{
    if (!isKeyed(variant))
        return false;
    out = variant.toHash();
    return true;
}

bool decodeVariant(const QVariant &variant, QMap<QString, QVariant> &out)
{
    if (!isKeyed(variant))
        return false;
    out = variant.toMap();
    return true;
}

bool dateTimeOf(const QString &text, QDateTime &out)
{
    if (text.isEmpty()) {
        out = QDateTime();
        return true;
    }
    return DecodeXmlRpcTimestamp(XmlRpc::XmlRpcValue(EncodeXmlRpcText(text)), out, true);
}

bool versionOf(const QString &text, QVersionNumber &out)
{
    int end = 0;
    const QVersionNumber version = QVersionNumber::fromString(text, &end);
    if (end != text.size())
        return false;
    out = version;
    return true;
}

bool convertVariant(const QVariant &variant, int &out)
{
    double number = 0;
    bool converts = true;
    if (!decodeVariant(variant, number)) // toInt would wrap what an int does not hold
        number = static_cast<double>(variant.toLongLong(&converts));
    number = std::round(number);
    using Int = std::numeric_limits<int>;
    if (!converts || !(number >= Int::min() && number <= Int::max()))
        return false;
    out = static_cast<int>(number);
    return true;
}

} // namespace quv
