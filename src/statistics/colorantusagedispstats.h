// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_statistics.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>

/**
 * What one machine has used of a colorant. Travels in a QVariant under its name, also as the map that its struct is, and so does a
 * QList of them.
 */
struct QUVPROTOCOL_EXPORT ColorantUsageDispStats
{
    static constexpr char serialNumber_TAG[] = "serial_number";
    static constexpr char colorantUsageStatsData_TAG[] = "colorant_usage_stats_data";

    ColorantUsageDispStats() = default;
    ColorantUsageDispStats(const QString &machine, const QList<ColorantUsageStatData> &records);
    /** Throws DE02252 for what is no struct, and DE02253 without a text and an array of records. */
    explicit ColorantUsageDispStats(const XmlRpc::XmlRpcValue &value);
    explicit ColorantUsageDispStats(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ColorantUsageDispStats(int) = delete;
    explicit ColorantUsageDispStats(double) = delete;
    explicit ColorantUsageDispStats(const char *) = delete;

    /** Of each record the \a information that was asked for; see ColorantUsageStatData. */
    XmlRpc::XmlRpcValue toXmlRpcValue(const QStringList &information = {}) const;

    bool operator==(const ColorantUsageDispStats &other) const;
    bool operator!=(const ColorantUsageDispStats &other) const { return !(*this == other); }

    QString serialNumber; ///< of the machine
    QList<ColorantUsageStatData> usage;
};

Q_DECLARE_METATYPE(ColorantUsageDispStats)
