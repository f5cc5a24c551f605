// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/colorantusagedispstats.h"

#include "base/objectfield_p.h"
#include "base/record_p.h"
#include "statistics/colorantusagedispstats_p.h"

#include <QuvFramework/fw_metatype.h>

namespace quv {

template <>
const FieldType &fieldType<QList<ColorantUsageStatData>>()
{
    static constexpr FieldType type = objectListType<ColorantUsageStatData>();
    return type;
}

} // namespace quv

namespace {

const bool isRegistered =
    RegisterTravellingList<ColorantUsageDispStats>("ColorantUsageDispStats", "QList<ColorantUsageDispStats>");

const quv::Record<ColorantUsageDispStats> &record()
{
    using Stats = ColorantUsageDispStats;
    static const quv::Record<Stats> record({
        {Stats::serialNumber_TAG, &Stats::serialNumber, quv::badUsageStruct},
        {Stats::colorantUsageStatsData_TAG, &Stats::usage, quv::badUsageStruct},
    });
    return record;
}

} // namespace

ColorantUsageDispStats::ColorantUsageDispStats(const QString &machine,
                                               const QList<ColorantUsageStatData> &records)
    : serialNumber(machine),
      usage(records)
{}

ColorantUsageDispStats::ColorantUsageDispStats(const XmlRpc::XmlRpcValue &value)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeStruct)
        quv::throwRefusal(quv::noUsageStruct, Q_FUNC_INFO);
    record().decode(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue ColorantUsageDispStats::toXmlRpcValue(const QStringList &information) const
{
    XmlRpc::XmlRpcValue value;
    value[serialNumber_TAG] = EncodeXmlRpcText(serialNumber);
    XmlRpc::XmlRpcValue &records = value[colorantUsageStatsData_TAG];
    records.setSize(usage.size());
    for (int i = 0; i < usage.size(); ++i)
        records[i] = usage.at(i).toXmlRpcValue(information);
    return value;
}

bool ColorantUsageDispStats::operator==(const ColorantUsageDispStats &other) const
{
    return record().equal(*this, other);
}
