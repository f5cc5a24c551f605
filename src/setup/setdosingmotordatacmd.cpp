// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setdosingmotordatacmd.h"

#include "base/describedcommand_p.h"
#include "setup/circuitposition_p.h"

struct SetDosingMotorDataCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_DM_DATA;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noPosition = {"DE00885", "DE00890",
                                                     "Position ID: expected INT parameter"};
        constexpr quv::ArgumentRefusal noNumber = {"DE00889", "DE00894",
                                                   "Pump serial number: expected STRING parameter"};
        archive.required({"position", "a circuit's position"}, self.m_positionID, noPosition, noPosition);
        archive.refuseUnless(quv::mayBePosition(self.m_positionID, self.machine()),
                             {"DE00884", "DE00891", "Position ID: value not existing"});
        archive.required({"serial_number", "of the pump"}, self.m_pumpSerialNumber, noNumber, noNumber);
    }
};

template class quv::DescribedCommand<SetDosingMotorDataCmd, ConfProtoCommand>;

SetDosingMotorDataCmd::SetDosingMotorDataCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
}

SetDosingMotorDataCmd::SetDosingMotorDataCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
}

SetDosingMotorDataCmd *SetDosingMotorDataCmd::clone() const
{
    return new SetDosingMotorDataCmd(*this);
}
