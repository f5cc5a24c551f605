// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/clonemachineanswer.h"

#include "base/describedanswer_p.h"
#include "base/machineid_p.h"

namespace {

constexpr quv::Refusal emptyList = {"DE02692", "CloneMachineCmd: empty parameters list received"};

} // namespace

struct CloneMachineAnswer::Description
{
    static std::vector<quv::Member<CloneMachineAnswer>> members()
    {
        return {quv::Member<CloneMachineAnswer>(machineID_TAG, &CloneMachineAnswer::m_machineID,
                                                {"DE03364", "CloneMachineAnswer: expected machine_id value"},
                                                {"DE02691", "CloneMachineCmd: Failed to parse machine ID"})
                    .alsoInList("the list is empty", emptyList)
                    .meaning("of the copy: \"id\" and \"machine\" (1 dispenser, 4 mixer)")};
    }
};

template class quv::DescribedAnswer<CloneMachineAnswer, ConfProtoAnswer>;

CloneMachineAnswer::CloneMachineAnswer(const MachineID &machineID) : m_machineID(machineID) {}

CloneMachineAnswer::CloneMachineAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

CloneMachineAnswer::CloneMachineAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

CloneMachineAnswer *CloneMachineAnswer::clone() const
{
    return new CloneMachineAnswer(*this);
}
