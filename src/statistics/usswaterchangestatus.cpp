// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/usswaterchangestatus.h"

#include "base/objectfield_p.h"
#include "statistics/statrecords_p.h"
#include "statistics/usswaterchangestatus_p.h"

#include <algorithm>
#include <limits>

namespace {

constexpr char badValue[] = "UssWaterChangeStatus: Errors during xmlrpc decoding";
constexpr char badVariant[] = "UssWaterChangeStatus: Errors during variant decoding";

/** Where an int would not hold it. */
long long cyclesSinceChange(const UssWaterChangeStatus &status)
{
    return static_cast<long long>(status.currentData.cleaningCycles) -
           status.lastWaterChangeData.cleaningCycles;
}

} // namespace

namespace quv {

template <>
const FieldType &fieldType<WaterChangeStatData>()
{
    static constexpr FieldType type = objectType<WaterChangeStatData>();
    return type;
}

const Record<UssWaterChangeStatus> &ussWaterChangeRecord()
{
    using Status = UssWaterChangeStatus;
    static const Record<Status> record({
        Member<Status>(Status::lastWaterChangeData_TAG, &Status::lastWaterChangeData, {"DE02622", badValue},
                       {"DE02627", badVariant})
            .meaning("when the water was changed, \"timestamp\" and \"cleaning_cycles\""),
        Member<Status>(Status::currentData_TAG, &Status::currentData, {"DE02623", badValue},
                       {"DE02626", badVariant})
            .meaning("the same now"),
        Member<Status>(Status::maxCleaningCycles_TAG, &Status::maxCleaningCycles, {"DE02624", badValue},
                       {"DE02625", badVariant})
            .meaning("with one water; 0 as many as one likes"),
    });
    return record;
}

} // namespace quv

UssWaterChangeStatus::UssWaterChangeStatus(const WaterChangeStatData &lastChange,
                                           const WaterChangeStatData &current, int maxCycles)
    : lastWaterChangeData(lastChange),
      currentData(current),
      maxCleaningCycles(maxCycles)
{}

UssWaterChangeStatus::UssWaterChangeStatus(const XmlRpc::XmlRpcValue &value)
{
    quv::ussWaterChangeRecord().decode(value, *this, Q_FUNC_INFO);
}

UssWaterChangeStatus::UssWaterChangeStatus(QList<QVariant> list)
{
    quv::ussWaterChangeRecord().decode(list, *this, Q_FUNC_INFO);
}

bool UssWaterChangeStatus::needWaterChange() const
{
    return maxCleaningCycles != 0 && cyclesSinceChange(*this) > maxCleaningCycles;
}

int UssWaterChangeStatus::remainingCleaningCycles() const
{
    constexpr long long none = 0;
    constexpr long long most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(maxCleaningCycles - cyclesSinceChange(*this), none, most));
}

XmlRpc::XmlRpcValue UssWaterChangeStatus::toXmlRpcValue() const
{
    return quv::ussWaterChangeRecord().encode(*this);
}

QList<QVariant> UssWaterChangeStatus::variantParameters() const
{
    return {QVariant::fromValue(lastWaterChangeData), QVariant::fromValue(currentData), maxCleaningCycles};
}

bool UssWaterChangeStatus::operator==(const UssWaterChangeStatus &other) const
{
    return quv::ussWaterChangeRecord().equal(*this, other);
}
