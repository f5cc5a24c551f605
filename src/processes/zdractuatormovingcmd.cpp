// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zdractuatormovingcmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "processes/zandor_p.h"

namespace {

constexpr char invalid[] = "ZDRActuatorMovingCmd: invalid parameter";

} // namespace

struct ZDRActuatorMovingCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::ZDR_ACTUATOR_MOVE;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional("actuator_type", self.m_actuatorType, {"DE02882", "DE02882", invalid});
        archive.optional({"operation", "245 for none"}, self.m_operation, {"DE02883", "DE02883", invalid});
        archive.optional("parameter_1", self.m_parameter1, {"DE02884", "DE02884", invalid});
        archive.optional("parameter_2", self.m_parameter2, {"DE02885", "DE02885", invalid});
        archive.optional("parameter_3", self.m_parameter3, {"DE02886", "DE02886", invalid});
        archive.optional({"value", "not sent when 0 or below"}, self.m_value,
                         {"DE02887", "DE02887", invalid});
    }
};

template class quv::DescribedCommand<ZDRActuatorMovingCmd, SerialProtoCommand>;

ZDRActuatorMovingCmd::ZDRActuatorMovingCmd(ActuatorOperation operation, int parameter1, int parameter2,
                                           int parameter3, int value)
    : ZDRActuatorMovingCmd(DefaultActuator, operation, parameter1, parameter2, parameter3, value)
{}

ZDRActuatorMovingCmd::ZDRActuatorMovingCmd(ActuatorType actuatorType, int operation, int parameter1,
                                           int parameter2, int parameter3, int value)
    : m_actuatorType(actuatorType),
      m_operation(operation),
      m_parameter1(parameter1),
      m_parameter2(parameter2),
      m_parameter3(parameter3),
      m_value(value)
{}

ZDRActuatorMovingCmd::ZDRActuatorMovingCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ZDRActuatorMovingCmd::ZDRActuatorMovingCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ZDRActuatorMovingCmd *ZDRActuatorMovingCmd::clone() const
{
    return new ZDRActuatorMovingCmd(*this);
}

QList<int> ZDRActuatorMovingCmd::serialParameters(int) const
{
    QList<int> parameters = {m_actuatorType, m_operation, m_parameter1, m_parameter2, m_parameter3};
    if (m_value > 0)
        quv::appendCountedDigits(parameters, m_value);
    return parameters;
}

bool ZDRActuatorMovingCmd::isSupportedCommand(const FW_Version &version) const
{
    return checkSupportedCommand(version);
}

bool ZDRActuatorMovingCmd::checkSupportedCommand(const FW_Version &version)
{
    return quv::passesGate(quv::drivesCappingStation, version);
}
