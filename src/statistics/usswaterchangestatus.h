// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_statistics.h>

#include <QtCore/QList>
#include <QtCore/QVariant>

/** How the water of the ultrasound cleaning is faring: how often the cleaning ran since it was changed, and how often it may. */
struct QUVPROTOCOL_EXPORT UssWaterChangeStatus
{
    static constexpr char lastWaterChangeData_TAG[] = "last_water_change_data";
    static constexpr char currentData_TAG[] = "current_data";
    static constexpr char maxCleaningCycles_TAG[] = "max_cleaning_cycles";

    UssWaterChangeStatus() = default;
    UssWaterChangeStatus(const WaterChangeStatData &lastChange, const WaterChangeStatData &current,
                         int maxCycles);
    /** Throws DE02622, DE02623 and DE02624 for the first member, in the order of the fields, that is missing or of another type. */
    explicit UssWaterChangeStatus(const XmlRpc::XmlRpcValue &value);
    /**
     * The fields in their order, the data also as maps. Throws DE02627, DE02626 and DE02625 for the first that is missing or of
     * another type.
     */
    explicit UssWaterChangeStatus(QList<QVariant> list);
    explicit UssWaterChangeStatus(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit UssWaterChangeStatus(int) = delete;
    explicit UssWaterChangeStatus(double) = delete;
    explicit UssWaterChangeStatus(const char *) = delete;

    /** True when the cleaning ran more often than it may; a maximum of 0 is never reached. */
    bool needWaterChange() const;
    int remainingCleaningCycles() const; ///< 0 to the greatest int

    XmlRpc::XmlRpcValue toXmlRpcValue() const;
    QList<QVariant> variantParameters() const; ///< the fields in their order

    bool operator==(const UssWaterChangeStatus &other) const;
    bool operator!=(const UssWaterChangeStatus &other) const { return !(*this == other); }

    WaterChangeStatData lastWaterChangeData;
    WaterChangeStatData currentData;
    int maxCleaningCycles = 0; ///< 0: as often as one likes
};
