// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/scaleresetcmd.h"

#include "base/describedcommand_p.h"

struct ScaleResetCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SCALE_RESET;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional("hard_reset", self.m_hardReset,
                         {"DE02171", "DE02172", "Hard reset value parameter: expected BOOL parameter"});
    }
};

template class quv::DescribedCommand<ScaleResetCmd, ConfProtoCommand>;

ScaleResetCmd::ScaleResetCmd(bool hardReset) : m_hardReset(hardReset) {}

ScaleResetCmd::ScaleResetCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ScaleResetCmd::ScaleResetCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ScaleResetCmd *ScaleResetCmd::clone() const
{
    return new ScaleResetCmd(*this);
}
