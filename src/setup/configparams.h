// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

/** Parameters of a machine by their names: what CONFIG_PARAM and the answer to it share. */
class QUVPROTOCOL_EXPORT ConfigParams
{
public:
    struct Description;

    static constexpr char configParams_TAG[] = "config_params";

    ConfigParams() = default;
    explicit ConfigParams(const QMap<QString, QVariant> &params);
    /** A struct with the member, a struct itself. Throws DE02815 without it. */
    explicit ConfigParams(const XmlRpc::XmlRpcValue &value);
    /** The parameters as a map, or as a hash. Throws DE02815 without one. */
    explicit ConfigParams(QList<QVariant> list);
    explicit ConfigParams(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ConfigParams(int) = delete;
    explicit ConfigParams(double) = delete;
    explicit ConfigParams(const char *) = delete;

    const QMap<QString, QVariant> &configParams() const { return m_configParams; }
    XmlRpc::XmlRpcValue xmlrpcvalue(bool *ok) const; ///< the struct; \a ok, when given, becomes true

    bool operator==(const ConfigParams &other) const;
    bool operator!=(const ConfigParams &other) const { return !(*this == other); }

protected:
    QMap<QString, QVariant> m_configParams;
};
