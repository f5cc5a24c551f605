// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/guard_p.h"
#include "base/refusal_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QVariant>
#include <QtCore/QVersionNumber>

#include <xmlrpcpp/XmlRpcValue.h>

#include <array>
#include <stdexcept>
#include <utility>

// Reading one value, or one variant of a list, of which a command or an answer is made.

namespace quv {

// An argument in a variant list: the stored type decides, nothing is converted but whole numbers in range.
bool decodeVariant(const QVariant &variant, bool &out);
bool decodeVariant(const QVariant &variant, int &out);
bool decodeVariant(const QVariant &variant, unsigned int &out);
bool decodeVariant(const QVariant &variant, long long &out);
bool decodeVariant(const QVariant &variant, double &out); ///< takes whole numbers as well
bool decodeVariant(const QVariant &variant, QString &out);
bool decodeVariant(const QVariant &variant, QStringList &out);
bool decodeVariant(const QVariant &variant, QList<int> &out);
bool decodeVariant(const QVariant &variant, QList<double> &out); ///< takes a list of such variants as well
bool decodeVariant(const QVariant &variant,
                   unsigned long long &out); ///< takes whole doubles beyond an int as well
bool decodeVariant(const QVariant &variant, QByteArray &out);
bool decodeVariant(const QVariant &variant, QDateTime &out);      ///< takes its text in ISO 8601 as well
bool decodeVariant(const QVariant &variant, QVersionNumber &out); ///< takes its text as well
bool decodeVariant(const QVariant &variant, QHash<QString, QVariant> &out); ///< takes a map as well
bool decodeVariant(const QVariant &variant, QMap<QString, QVariant> &out);  ///< takes a hash as well

/** A date and time in ISO 8601, in UTC when it has no offset of its own. No text is no time. */
bool dateTimeOf(const QString &text, QDateTime &out);
/** A version of numbers and points alone. No text is no version. */
bool versionOf(const QString &text, QVersionNumber &out);

/** Whatever converts to an int that holds it: also a fraction, which is rounded, a bool, and the digits of a text. */
bool convertVariant(const QVariant &variant, int &out);

/** The member without which a variant map is no T, for the types for which a map may stand. */
template <class T>
inline constexpr const char *markOf = nullptr;

/** What people call such a type. */
template <class T>
inline constexpr const char *nameOf = "struct";

/** What an object is refused with by its own class, over XML-RPC. */
template <class T>
inline constexpr std::array<std::pair<const char *, Refusal>, 0> ownRefusals = {};

/** True for a T, and for a map that is meant for one. */
template <class T>
bool holds(const QVariant &variant)
{
    // of all that converts to a map only a map converts to T
    return variant.userType() == qMetaTypeId<T>() || (variant.userType() == QMetaType::QVariantMap &&
                                                      variant.toMap().contains(QLatin1String(markOf<T>)));
}

/** What \a make gives, as with a copy that needs memory. Throws \a refusal in place of anything but an FW_Exception. */
template <class Make>
auto madeOrRefused(const Refusal &refusal, const char *function, Make make) -> decltype(make())
{
    try {
        return make();
    } catch (...) {
        rethrowCurrentException(refusal.code, refusal.text, function);
    }
}

/**
 * The T that \a variant holds. Throws \a expected when it holds none, and \a incorrect when the map in it cannot be read
 * as one.
 */
template <class T>
T decodedVariant(const QVariant &variant, const Refusal &expected, const Refusal &incorrect,
                 const char *function)
{
    if (!holds<T>(variant))
        throwRefusal(expected, function);
    return madeOrRefused(incorrect, function, [&] { return variant.value<T>(); });
}

/** The T that the value, which may be missing, can be read as. Throws \a refusal when it cannot. */
template <class T>
T decodedValue(const XmlRpc::XmlRpcValue *value, const Refusal &refusal, const char *function)
{
    return madeOrRefused(refusal, function, [value] {
        if (!value)
            throw std::invalid_argument("nothing to decode");
        return T(*value);
    });
}

/** A copy. Throws \a refusal when there is none to be had: the contract, since a formula shares its content with its copies. */
template <class T>
T copied(const T &original, const Refusal &refusal, const char *function)
{
    return madeOrRefused(refusal, function, [&] { return original; });
}

} // namespace quv
