// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/setdispdatacmd.h"

#include "base/describedcommand_p.h"

#include <QuvFramework/fw_dispenser.h>

struct SetDispDataCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_DISP_DATA;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noText = {"DE00684", "DE00804",
                                                 "Dispenser description: expected STRING parameter"};
        archive.required({"description", "of the dispenser, for people"}, self.m_dispenserDescription, noText,
                         noText);
    }
};

template class quv::DescribedCommand<SetDispDataCmd, ConfProtoCommand>;

SetDispDataCmd::SetDispDataCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{
    read(value, Q_FUNC_INFO);
}

SetDispDataCmd::SetDispDataCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : DescribedCommand(list, dispenser)
{
    read(list, Q_FUNC_INFO);
}

SetDispDataCmd *SetDispDataCmd::clone() const
{
    return new SetDispDataCmd(*this);
}
