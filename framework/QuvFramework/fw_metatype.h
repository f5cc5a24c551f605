// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_xmlrpc.h>

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVariant>

/**
 * Registers a type that travels in a QVariant: under its name, comparable, and convertible to and from the QVariantMap that
 * its XML-RPC struct is as a variant. T has toXmlRpcValue(), operator== and a constructor from an XmlRpcValue; what that
 * constructor throws leaves QVariant::value() as well. Always true, so that a constant can be initialised with it.
 */
template <class T>
bool RegisterTravellingType(const char *name)
{
    using Map = QMap<QString, QVariant>;
    qRegisterMetaType<T>(name);
    QMetaType::registerEqualsComparator<T>();
    QMetaType::registerConverter<T, Map>(
        [](const T &object) { return DecodeXmlRpcVariant(object.toXmlRpcValue()).toMap(); });
    QMetaType::registerConverter<Map, T>([](const Map &members) { return T(EncodeXmlRpcObject(members)); });
    return true;
}

/** The same, and the list of T under \a listName: comparable, and convertible from a list of variants that each hold a T. */
template <class T>
bool RegisterTravellingList(const char *name, const char *listName)
{
    qRegisterMetaType<QList<T>>(listName);
    QMetaType::registerEqualsComparator<QList<T>>();
    QMetaType::registerConverter<QList<QVariant>, QList<T>>([](const QList<QVariant> &variants) {
        QList<T> objects;
        objects.reserve(variants.size());
        for (const QVariant &variant : variants)
            objects.append(variant.value<T>());
        return objects;
    });
    return RegisterTravellingType<T>(name);
}
