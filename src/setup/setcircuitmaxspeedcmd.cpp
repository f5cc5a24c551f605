// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setcircuitmaxspeedcmd.h"

#include "base/describedcommand_p.h"
#include "setup/circuitposition_p.h"

struct SetCircuitMaxSpeedCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_CIRCUIT_MAX_SPEED;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noPosition = {"DE01015", "DE01019",
                                                     "Position ID: expected INT parameter"};
        constexpr quv::ArgumentRefusal noSpeed = {"DE01017", "DE01021",
                                                  "Maximum speed: expected INT parameter"};
        archive.required({"position", "a circuit's position"}, self.m_positionID, noPosition, noPosition);
        archive.refuseUnless(quv::mayBePosition(self.m_positionID, self.machine()),
                             {"DE01014", "DE01020", "Position ID: value not existing"});
        archive.required({"max_speed", "turns per minute, 1 to 2000"}, self.m_maxSpeed, noSpeed, noSpeed);
        archive.refuseUnless(FW_DosingMotor::checkMaxSpeed(self.m_maxSpeed),
                             {"DE01016", "DE01023", "Maximum speed: incorrect value"});
        archive.optional({"user_speed", "whether the user chose the speed"}, self.m_userSpeed,
                         {"DE01018", "DE01024", "User speed: expected BOOL parameter"});
    }
};

template class quv::DescribedCommand<SetCircuitMaxSpeedCmd, ConfProtoCommand>;

SetCircuitMaxSpeedCmd::SetCircuitMaxSpeedCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
}

SetCircuitMaxSpeedCmd::SetCircuitMaxSpeedCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
}

SetCircuitMaxSpeedCmd *SetCircuitMaxSpeedCmd::clone() const
{
    return new SetCircuitMaxSpeedCmd(*this);
}
