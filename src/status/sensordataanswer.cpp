// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensordataanswer.h"

#include "base/describedanswer_p.h"
#include "base/objectfield_p.h"
#include "status/sensordata_p.h"

#include <utility>

namespace quv {

template <>
const FieldType &fieldType<SensorData>()
{
    static constexpr FieldType type = objectType<SensorData>();
    return type;
}

} // namespace quv

struct SensorDataAnswer::Description
{
    using Answer = SensorDataAnswer;

    static std::vector<quv::Member<Answer>> members()
    {
        return {quv::Member<Answer>(sensorData_TAG, &Answer::m_sensorData,
                                    {"DE00798", "SensorDataAnswer: Errors during SensorData list creation"})
                    .unmade({"DE00797", "SensorDataAnswer failed: expected SensorData type parameter"})
                    .meaning("the numbers of sensor and measure, and the value")};
    }
};

template class quv::DescribedAnswer<SensorDataAnswer, SerialProtoAnswer>;

SensorDataAnswer::SensorDataAnswer(const SensorData &sensorData) : m_sensorData(sensorData) {}

SensorDataAnswer::SensorDataAnswer(QList<QVariant> &list) : DescribedAnswer(list) {}

SensorDataAnswer::SensorDataAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

SensorDataAnswer::SensorDataAnswer(QStringList tokens) : DescribedAnswer(std::move(tokens))
{
    m_sensorData =
        quv::madeOrRefused({"DE00794", "SensorDataAnswer failed: expected SensorData type parameter"},
                           Q_FUNC_INFO, [this] { return SensorData(m_parameters); });
}

SensorDataAnswer *SensorDataAnswer::clone() const
{
    return new SensorDataAnswer(*this);
}
