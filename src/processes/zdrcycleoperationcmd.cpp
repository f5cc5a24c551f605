// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zdrcycleoperationcmd.h"

#include "base/describedcommand_p.h"
#include "processes/zandor_p.h"

namespace {

constexpr char invalid[] = "ZDRCycleOperationCmd: invalid parameter";

} // namespace

struct ZDRCycleOperationCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::ZDR_CYCLE_OPERATION;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional("cycle_type", self.m_cycleType, {"DE02879", "DE02879", invalid});
        archive.optional("parameter_1", self.m_parameter1, {"DE02880", "DE02880", invalid});
        archive.optional("parameter_2", self.m_parameter2, {"DE02881", "DE02881", invalid});
    }
};

template class quv::DescribedCommand<ZDRCycleOperationCmd, SerialProtoCommand>;

ZDRCycleOperationCmd::ZDRCycleOperationCmd(CycleType cycleType, int parameter1, int parameter2)
    : m_cycleType(cycleType),
      m_parameter1(parameter1),
      m_parameter2(parameter2)
{}

ZDRCycleOperationCmd::ZDRCycleOperationCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ZDRCycleOperationCmd::ZDRCycleOperationCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ZDRCycleOperationCmd *ZDRCycleOperationCmd::clone() const
{
    return new ZDRCycleOperationCmd(*this);
}

QList<int> ZDRCycleOperationCmd::serialParameters(int) const
{
    return {m_cycleType, m_parameter1, m_parameter2};
}

bool ZDRCycleOperationCmd::isSupportedCommand(const FW_Version &version) const
{
    return checkSupportedCommand(version);
}

bool ZDRCycleOperationCmd::checkSupportedCommand(const FW_Version &version)
{
    return quv::passesGate(quv::drivesCappingStation, version);
}
