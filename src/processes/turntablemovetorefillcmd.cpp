// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/turntablemovetorefillcmd.h"

#include "base/describedcommand_p.h"
#include "processes/turntablemovecmd.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_turntable.h>

extern template class quv::DescribedCommand<TurntableMoveCmd, SerialProtoCommand>; // of its own source

namespace {

const FW_Turntable *turntableOf(const FW_Machine *machine)
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(machine);
    return dispenser ? dynamic_cast<const FW_Turntable *>(dispenser->getDevice(FW_Device::Turntable))
                     : nullptr;
}

} // namespace

struct TurntableMoveToRefillCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::TURNTABLE_MOVE_TO_REFILL;

    static constexpr auto commandText = "Turntable move to refill position";
    static constexpr auto actionText =
        QT_TRANSLATE_NOOP("QuvProtocol", "Moving turntable to refill position");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noPosition = {
            "DE01914", "DE01915", "Turntable movement position ID: expected INT parameter"};
        archive.required({"position", "a circuit's position"}, self.m_moduleID, noPosition, noPosition);
    }
};

template class quv::DescribedCommand<TurntableMoveToRefillCmd, SerialProtoCommand>;

TurntableMoveToRefillCmd::TurntableMoveToRefillCmd(int positionID, const FW_Dispenser *dispenser)
    : DescribedCommand(dispenser)
{
    setModuleID(positionID);
}

TurntableMoveToRefillCmd::TurntableMoveToRefillCmd(const XmlRpc::XmlRpcValue &value,
                                                   const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
}

TurntableMoveToRefillCmd::TurntableMoveToRefillCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
}

TurntableMoveToRefillCmd *TurntableMoveToRefillCmd::clone() const
{
    return new TurntableMoveToRefillCmd(*this);
}

QList<int> TurntableMoveToRefillCmd::serialParameters(int family) const
{
    const FW_Turntable *turntable = turntableOf(machine());
    if (!turntable)
        return {};
    int angle = 0;
    int direction = 0;
    TurntableMoveCmd::convertFromConfiguration(turntable->refillAngle(), angle, direction);
    return TurntableMoveCmd(moduleID(), angle, direction).serialParameters(family);
}
