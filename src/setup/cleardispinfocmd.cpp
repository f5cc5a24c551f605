// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/cleardispinfocmd.h"

#include "base/serialprotoanswer.h"
#include "setup/dispinfocmd_p.h"

struct ClearDispInfoCmd::Description : DispInfoCmd::Description
{
    static constexpr auto command = ProtoCommandList::CLEAR_DISP_INFO;

    // nothing is told in it, but who reads logs tells by the code which command failed
    static constexpr quv::AnsweredBy<SerialProtoAnswer> answer = {
        {"DE00099", "Failed to create ProtoAnswer"}, {}, {}, {}};
};

template class quv::DescribedCommand<ClearDispInfoCmd, DispInfoCmd>;

ClearDispInfoCmd::ClearDispInfoCmd(int infoType)
{
    m_infoType = infoType;
}

ClearDispInfoCmd::ClearDispInfoCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value) {}

ClearDispInfoCmd::ClearDispInfoCmd(QList<QVariant> list) : DescribedCommand(list) {}

ClearDispInfoCmd *ClearDispInfoCmd::clone() const
{
    return new ClearDispInfoCmd(*this);
}

QList<int> ClearDispInfoCmd::serialParameters(int) const
{
    constexpr int clearing = 0;
    return {m_infoType, clearing};
}
