// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/sensordatacmd.h"

#include "base/describedcommand_p.h"
#include "status/sensordataanswer.h"

struct SensorDataCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_SENSOR_DATA;

    static constexpr char answerFailed[] = "Failed to create SensorDataAnswer";
    static constexpr quv::AnsweredBy<SensorDataAnswer> answer = {{"DE00787", answerFailed},
                                                                 {"DE01298", answerFailed},
                                                                 {"DE01299", answerFailed},
                                                                 {"DE00786", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"sensor_type", "0 to 20"}, self.m_sensorData.sensorType,
                         {"DE00782", "DE00784", "Sensor type value type: expected INT parameter"});
        archive.optional({"measure_type", "0 to 2"}, self.m_sensorData.measureType,
                         {"DE00783", "DE00785", "Measure type value type: expected INT parameter"});
    }
};

template class quv::DescribedCommand<SensorDataCmd, SerialProtoCommand>;

SensorDataCmd::SensorDataCmd(const SensorData &sensorData) : m_sensorData(sensorData) {}

SensorDataCmd::SensorDataCmd(SensorData::SensorType sensorType, SensorData::MeasureType measureType)
    : m_sensorData(sensorType, measureType)
{}

SensorDataCmd::SensorDataCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

SensorDataCmd::SensorDataCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SensorDataCmd *SensorDataCmd::clone() const
{
    return new SensorDataCmd(*this);
}

void SensorDataCmd::setDefaults()
{
    m_sensorData.setDefaults();
}

QList<int> SensorDataCmd::serialParameters(int) const
{
    return {m_sensorData.sensorType, m_sensorData.measureType};
}

QList<SensorData::MeasureType> SensorDataCmd::readingTypes(bool first, bool second, bool third, bool fourth,
                                                           bool fifth)
{
    QList<SensorData::MeasureType> types;
    const auto addIf = [&types](bool wanted, int type) {
        if (wanted)
            types.append(static_cast<SensorData::MeasureType>(type));
    };
    addIf(first && fifth, 0);
    addIf(second || third, 1);
    addIf(fourth, 2);
    return types;
}
