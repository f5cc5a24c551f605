// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/workingmodecmd.h"

#include "base/describedcommand_p.h"
#include "processes/temporized_p.h"
#include "processes/toggletemporizedcmd.h"
#include "processes/workingmodeanswer.h"

#include <QuvFramework/fw_dispenser.h>

namespace {

constexpr char invalid[] = "Invalid working mode value";
constexpr quv::ArgumentRefusal unknownMode = {"DE01004", "DE01005", invalid};

} // namespace

struct WorkingModeCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::WORKING_MODE;

    static constexpr char answerFailed[] = "Failed to create WorkingModeAnswer";
    static constexpr quv::AnsweredBy<WorkingModeAnswer> answer = {{"DE00103", answerFailed},
                                                                  {"DE01302", answerFailed},
                                                                  {"DE01303", answerFailed},
                                                                  {"DE01231", answerFailed}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"working_mode", "0 to 8; 5 holds the timed processes"}, self.m_workingMode,
                         {"DE00317", "DE00318", "Working mode value type: expected INT parameter"});
        archive.refuseUnless(
            self.m_workingMode == unset || FW_Dispenser::checkWorkingMode(self.m_workingMode), unknownMode);
    }
};

template class quv::DescribedCommand<WorkingModeCmd, SerialProtoCommand>;

WorkingModeCmd::WorkingModeCmd(int workingMode) : m_workingMode(workingMode)
{
    if (!FW_Dispenser::checkWorkingMode(workingMode))
        throw FW_Exception("DE01003", invalid, Q_FUNC_INFO);
}

WorkingModeCmd::WorkingModeCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
    if (value.size() > 0 && m_workingMode == unset) // which it is only without an argument
        quv::throwRefusal(unknownMode.value, Q_FUNC_INFO);
}

WorkingModeCmd::WorkingModeCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
    if (!list.isEmpty() && m_workingMode == unset)
        quv::throwRefusal(unknownMode.list, Q_FUNC_INFO);
}

WorkingModeCmd *WorkingModeCmd::clone() const
{
    return new WorkingModeCmd(*this);
}

QList<int> WorkingModeCmd::serialParameters(int family) const
{
    if (family != FW_Dispenser::CommandFamily1)
        return {};
    return {m_workingMode, 0,
            m_workingMode == quv::timedProcessesHeld ? ToggleTemporizedCmd::defaultFreezeTimeout : 0};
}
