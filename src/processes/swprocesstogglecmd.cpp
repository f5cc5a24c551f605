// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/swprocesstogglecmd.h"

#include "base/describedcommand_p.h"
#include "base/gate_p.h"

namespace {

constexpr quv::FamilyGate switchesProcesses[] = {{63, 37}, {69, 2}, {70, 1}};

constexpr char invalid[] = "SwProcessToggleCmd: invalid parameter";

} // namespace

struct SwProcessToggleCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SW_PROCESS_TOGGLE;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal badFirst = {"DE02572", "DE02905", invalid};
        constexpr quv::ArgumentRefusal badSecond = {"DE02573", "DE02906", invalid};
        archive.required({"first", "a number of the firmware's own"}, self.m_first, badFirst, badFirst);
        archive.required({"second", "likewise"}, self.m_second, badSecond, badSecond);
        archive.optional({"third", "likewise"}, self.m_third, {"DE02574", "DE02907", invalid});
        archive.optional({"fourth", "likewise"}, self.m_fourth, {"DE02575", "DE02908", invalid});
    }
};

template class quv::DescribedCommand<SwProcessToggleCmd, SerialProtoCommand>;

SwProcessToggleCmd::SwProcessToggleCmd(int first, int second, int third, int fourth)
    : m_first(first),
      m_second(second),
      m_third(third),
      m_fourth(fourth)
{}

SwProcessToggleCmd::SwProcessToggleCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

SwProcessToggleCmd::SwProcessToggleCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

SwProcessToggleCmd *SwProcessToggleCmd::clone() const
{
    return new SwProcessToggleCmd(*this);
}

QList<int> SwProcessToggleCmd::serialParameters(int) const
{
    return {m_first, m_second, m_third, m_fourth};
}

bool SwProcessToggleCmd::isSupportedCommand(const FW_Version &version) const
{
    return quv::passesGate(switchesProcesses, version);
}
