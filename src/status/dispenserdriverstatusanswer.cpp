// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/dispenserdriverstatusanswer.h"

#include "status/dispenserstatus_p.h"
#include "status/dispenserstatusanswer.h"
#include "status/machinedriverstatusanswer_p.h"

namespace quv {

template <>
inline constexpr const char *markOf<DispenserStatusAnswer> = "disp_status";

} // namespace quv

namespace {

constexpr char answerNotMade[] = "DispenserDriverStatusAnswer: Errors during DispenserStatusAnswer creation";
constexpr quv::Refusal noStatus = {"DE00735",
                                   "DispenserDriverStatusAnswer: Errors during DispenserStatus creation"};
constexpr quv::Refusal noAnswer = {"DE00736", answerNotMade};
constexpr quv::Refusal noAnswerInList = {"DE00737", answerNotMade};

} // namespace

DispenserDriverStatusAnswer::DispenserDriverStatusAnswer(const DispenserStatus *status,
                                                         const DispenserStatusAnswer *answer)
    : MachineDriverStatusAnswer(status, answer)
{}

DispenserDriverStatusAnswer::DispenserDriverStatusAnswer(const XmlRpc::XmlRpcValue &value)
{
    quv::readDriverStatus<DispenserStatus, DispenserStatusAnswer>(value, noStatus, noAnswer, Q_FUNC_INFO,
                                                                  *this);
}

DispenserDriverStatusAnswer::DispenserDriverStatusAnswer(QList<QVariant> &list) : ConfProtoAnswer(list)
{
    quv::readDriverStatus<DispenserStatus, DispenserStatusAnswer>(list, noStatus, noAnswerInList, Q_FUNC_INFO,
                                                                  *this);
}

DispenserDriverStatusAnswer *DispenserDriverStatusAnswer::clone() const
{
    return new DispenserDriverStatusAnswer(*this);
}

bool DispenserDriverStatusAnswer::equalTo(const ProtoAnswer *other) const
{
    return mds_equalTo(dynamic_cast<const DispenserDriverStatusAnswer *>(other));
}

XmlRpc::XmlRpcValue DispenserDriverStatusAnswer::toXmlRpcValue() const
{
    return quv::writtenDriverStatus<DispenserStatus, DispenserStatusAnswer>(*this);
}

QList<quv::MemberFacts> DispenserDriverStatusAnswer::memberFacts()
{
    return quv::driverStatusFacts<DispenserStatus, DispenserStatusAnswer>(noStatus, noAnswer, noAnswerInList);
}
