// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/setboardpowercmd.h"

#include "base/describedcommand_p.h"
#include "processes/leadingposition_p.h"

namespace {

constexpr quv::ArgumentRefusal noNumber = {"DE01316", "DE01319",
                                           "Invalid parameters: expected INT parameter"};

} // namespace

struct SetBoardPowerCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_BOARD_POWER;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.requiredIf(false,
                           {"position", "a circuit's position; may be left out before the two that follow"},
                           self.m_moduleID, quv::countedBefore, noNumber);
        archive.required({"power_type", "1 to 3"}, self.m_powerType, quv::countedBefore, noNumber);
        archive.refuseUnless(checkPowerType(self.m_powerType),
                             {"DE01317", "DE01320", "Invalid power type parameter"});
        archive.required({"power_action", "1 to 3"}, self.m_powerAction, quv::countedBefore, noNumber);
        archive.refuseUnless(checkPowerAction(self.m_powerAction),
                             {"DE01318", "DE01320", "Invalid power action parameter"});
    }
};

template class quv::DescribedCommand<SetBoardPowerCmd, SerialProtoCommand>;

SetBoardPowerCmd::SetBoardPowerCmd(int powerType, int powerAction)
    : SetBoardPowerCmd(0, powerType, powerAction)
{}

SetBoardPowerCmd::SetBoardPowerCmd(int position, int powerType, int powerAction)
    : m_powerType(powerType),
      m_powerAction(powerAction)
{
    m_moduleID = position;
}

SetBoardPowerCmd::SetBoardPowerCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(quv::withPosition(value), Q_FUNC_INFO);
}

SetBoardPowerCmd::SetBoardPowerCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(quv::withPosition(list), Q_FUNC_INFO);
}

SetBoardPowerCmd *SetBoardPowerCmd::clone() const
{
    return new SetBoardPowerCmd(*this);
}

QList<int> SetBoardPowerCmd::serialParameters(int) const
{
    return {m_powerType, m_powerAction};
}

QString SetBoardPowerCmd::commandString() const
{
    return quv::translated(QT_TRANSLATE_NOOP("QuvProtocol", "In progress"));
}

bool SetBoardPowerCmd::checkPowerType(int powerType)
{
    return powerType >= 1 && powerType <= 3;
}

bool SetBoardPowerCmd::checkPowerAction(int powerAction)
{
    return powerAction >= 1 && powerAction <= 3;
}
