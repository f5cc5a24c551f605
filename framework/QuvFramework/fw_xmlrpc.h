// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <string>

// Reading and writing XML-RPC values.
//
// Reading is strict about types: an int is no bool, a text is no number. An int is taken where a double is asked for, a
// double where a number of 64 bits is and no int holds the number, and an unsigned type takes no negative number. Every reader gives
// false and leaves its target alone when the value, the member or the element is missing or of another type, and none of
// them throws or changes the value.

/** Text of an XML-RPC string: UTF-8 when it is valid, else Latin-1, since clients write either. */
QUVFRAMEWORK_EXPORT QString DecodeXmlRpcText(const std::string &bytes);
/** The text as UTF-8. */
QUVFRAMEWORK_EXPORT std::string EncodeXmlRpcText(const QString &text);

// The value itself.
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, bool &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, int &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, unsigned int &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, long long &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, unsigned long long &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, double &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, QString &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, QByteArray &out); ///< binary
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value,
                                           QStringList &out); ///< array of texts
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value,
                                           QList<int> &out); ///< array of ints
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, QHash<QString, QVariant> &out);
/** All members of a struct, each as DecodeXmlRpcVariant gives it. */
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, QMap<QString, QVariant> &out);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, XmlRpc::XmlRpcValue &out);

/** The member \a key of the struct \a value, in place; null when it is missing or \a value is no struct. */
QUVFRAMEWORK_EXPORT const XmlRpc::XmlRpcValue *FindXmlRpcMember(const XmlRpc::XmlRpcValue &value,
                                                                const std::string &key);
/** The element \a index of the array \a value, in place; null when it is out of range or \a value is no array. */
QUVFRAMEWORK_EXPORT const XmlRpc::XmlRpcValue *FindXmlRpcElement(const XmlRpc::XmlRpcValue &value, int index);
// what they gave of a temporary would be gone with it
const XmlRpc::XmlRpcValue *FindXmlRpcMember(const XmlRpc::XmlRpcValue &&value,
                                            const std::string &key) = delete;
const XmlRpc::XmlRpcValue *FindXmlRpcElement(const XmlRpc::XmlRpcValue &&value, int index) = delete;

/** The member \a key of a struct, as one of the types above. */
template <class T>
bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, const QString &key, T &out)
{
    const XmlRpc::XmlRpcValue *member = FindXmlRpcMember(value, EncodeXmlRpcText(key));
    return member && DecodeXmlRpcValue(*member, out);
}

/** The element \a index of an array, as one of the types above. */
template <class T>
bool DecodeXmlRpcValue(const XmlRpc::XmlRpcValue &value, int index, T &out)
{
    const XmlRpc::XmlRpcValue *element = FindXmlRpcElement(value, index);
    return element && DecodeXmlRpcValue(*element, out);
}

// a pointer would become a boolean value, in which there is nothing to find
template <class T, class... Arguments>
bool DecodeXmlRpcValue(const T *value, Arguments &&...arguments) = delete;

/** The same type and content, all the way down; the value class's own comparison leaves out the names of members. */
QUVFRAMEWORK_EXPORT bool SameXmlRpcValue(const XmlRpc::XmlRpcValue &left, const XmlRpc::XmlRpcValue &right);

/** The raw member; false when it is missing. */
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcMember(const XmlRpc::XmlRpcValue &value, const QString &key,
                                            XmlRpc::XmlRpcValue &out);

/**
 * The value, or the member, as date and time: an XML-RPC dateTime, or a text in ISO 8601. \a utc tells how a time without an offset of
 * its own is meant: in UTC, or in local time.
 */
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcTimestamp(const XmlRpc::XmlRpcValue &value, QDateTime &out, bool utc);
QUVFRAMEWORK_EXPORT bool DecodeXmlRpcTimestamp(const XmlRpc::XmlRpcValue &value, const QString &key,
                                               QDateTime &out, bool utc);

/** Any XML-RPC value as a variant: scalars, QByteArray, QDateTime, QList<QVariant>, QMap<QString, QVariant>. */
QUVFRAMEWORK_EXPORT QVariant DecodeXmlRpcVariant(const XmlRpc::XmlRpcValue &value);
/**
 * The inverse. A whole number beyond 32 bits becomes a double, a date and time is written in local time, and a type that
 * converts to a map or a list as that. What XML-RPC cannot hold, an invalid variant among it, becomes the integer 0: an
 * empty value cannot be read back from a document.
 */
QUVFRAMEWORK_EXPORT XmlRpc::XmlRpcValue EncodeXmlRpcVariant(const QVariant &variant);
/**
 * The same for a variant that is read at once, as a map that stands for an object: what XML-RPC cannot hold stays an empty value, which
 * is of no type, so that nobody reads a 0 that nobody wrote.
 */
QUVFRAMEWORK_EXPORT XmlRpc::XmlRpcValue EncodeXmlRpcObject(const QVariant &variant);

/** Makes \a value a struct, if it is none yet, and sets the member \a key. Texts are written as UTF-8. */
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key, bool member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key, int member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key, double member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key,
                                           const QString &member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key,
                                           const QStringList &member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key,
                                           const QList<int> &member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key,
                                           const QHash<QString, QVariant> &member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key,
                                           const XmlRpc::XmlRpcValue &member);
QUVFRAMEWORK_EXPORT void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value,
                                           const QMap<QString, QVariant> &members);
template <class T>
void EncodeXmlRpcValue(XmlRpc::XmlRpcValue &value, const QString &key,
                       const T *member) = delete; // would be a bool

/**
 * The element \a index of a list. False, and \a out left alone, when it is out of range or does not convert: an int is
 * taken as a long long, a long long in range as an int; no text is taken as a number and no number as a bool.
 */
QUVFRAMEWORK_EXPORT bool DecodeVariantList(const QList<QVariant> &list, int index, bool &out);
QUVFRAMEWORK_EXPORT bool DecodeVariantList(const QList<QVariant> &list, int index, int &out);
QUVFRAMEWORK_EXPORT bool DecodeVariantList(const QList<QVariant> &list, int index, long long &out);
QUVFRAMEWORK_EXPORT bool DecodeVariantList(const QList<QVariant> &list, int index, QStringList &out);
QUVFRAMEWORK_EXPORT bool DecodeVariantList(const QList<QVariant> &list, int index, QList<int> &out);

/** The numbers as variants, each of type int. */
QUVFRAMEWORK_EXPORT QList<QVariant> intListToVariant(const QList<int> &numbers);
