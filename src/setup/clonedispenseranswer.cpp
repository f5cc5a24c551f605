// SPDX-License-Identifier: LGPL-3.0-or-later
#include "setup/clonedispenseranswer.h"

#include "base/describedanswer_p.h"

namespace {

constexpr char noID[] = "CloneDispenserAnswer: Failed to parse dispenser ID";
constexpr quv::Refusal emptyList = {"DE01476",
                                    "CloneDispenserAnswer decoding failed: invalid QVariant value"};

} // namespace

struct CloneDispenserAnswer::Description
{
    static std::vector<quv::Member<CloneDispenserAnswer>> members()
    {
        return {quv::Member<CloneDispenserAnswer>(dispID_TAG, &CloneDispenserAnswer::m_dispID,
                                                  {"DE01481", noID}, {"DE01475", noID})
                    .alsoInList("the list is empty", emptyList)
                    .meaning("of the copy")};
    }
};

template class quv::DescribedAnswer<CloneDispenserAnswer, ConfProtoAnswer>;

CloneDispenserAnswer::CloneDispenserAnswer(int dispID) : m_dispID(dispID) {}

CloneDispenserAnswer::CloneDispenserAnswer(const XmlRpc::XmlRpcValue &value) : DescribedAnswer(value)
{
    read(value, Q_FUNC_INFO);
}

CloneDispenserAnswer::CloneDispenserAnswer(QList<QVariant> &list) : DescribedAnswer(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    read(list, Q_FUNC_INFO);
}

CloneDispenserAnswer *CloneDispenserAnswer::clone() const
{
    return new CloneDispenserAnswer(*this);
}
