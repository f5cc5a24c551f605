// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * A command that a capping station knows: its code, and numbers about it, which are the firmware's. Travels in a QVariant
 * under its name, also as the map that its struct is; over XML-RPC "code" (int) and "fields" (array of ints).
 */
struct QUVPROTOCOL_EXPORT ZandorCommand
{
    static constexpr char code_TAG[] = "code";
    static constexpr char fields_TAG[] = "fields";

    ZandorCommand() = default;
    ZandorCommand(int commandCode, const QList<int> &commandFields) : code(commandCode), fields(commandFields)
    {}
    /** Throws DE02895 when a member is missing or of another type. */
    explicit ZandorCommand(const XmlRpc::XmlRpcValue &value);
    explicit ZandorCommand(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ZandorCommand(int) = delete;
    explicit ZandorCommand(double) = delete;
    explicit ZandorCommand(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const ZandorCommand &other) const;
    bool operator!=(const ZandorCommand &other) const { return !(*this == other); }

    int code = 0;
    QList<int> fields;
};

Q_DECLARE_METATYPE(ZandorCommand)
