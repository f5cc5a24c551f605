// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/mixerdriverstatusanswer.h"

#include "status/machinedriverstatusanswer_p.h"
#include "status/mixerstatus_p.h"
#include "status/mixerstatusanswer.h"

namespace quv {

template <>
inline constexpr const char *markOf<MixerStatusAnswer> = "disp_status";

} // namespace quv

namespace {

constexpr char answerNotMade[] = "MixerDriverStatusAnswer: Errors during MixerStatusAnswer creation";
constexpr quv::Refusal noStatus = {"DE03206", "MixerDriverStatusAnswer: Errors during MixerStatus creation"};
constexpr quv::Refusal noAnswer = {"DE03207", answerNotMade};
constexpr quv::Refusal noAnswerInList = {"DE03208", answerNotMade};

} // namespace

MixerDriverStatusAnswer::MixerDriverStatusAnswer(const MixerStatus *status, const MixerStatusAnswer *answer)
    : MachineDriverStatusAnswer(status, answer)
{}

MixerDriverStatusAnswer::MixerDriverStatusAnswer(const XmlRpc::XmlRpcValue &value)
{
    quv::readDriverStatus<MixerStatus, MixerStatusAnswer>(value, noStatus, noAnswer, Q_FUNC_INFO, *this);
}

MixerDriverStatusAnswer::MixerDriverStatusAnswer(QList<QVariant> &list) : ConfProtoAnswer(list)
{
    quv::readDriverStatus<MixerStatus, MixerStatusAnswer>(list, noStatus, noAnswerInList, Q_FUNC_INFO, *this);
}

MixerDriverStatusAnswer *MixerDriverStatusAnswer::clone() const
{
    return new MixerDriverStatusAnswer(*this);
}

bool MixerDriverStatusAnswer::equalTo(const ProtoAnswer *other) const
{
    return mds_equalTo(dynamic_cast<const MixerDriverStatusAnswer *>(other));
}

XmlRpc::XmlRpcValue MixerDriverStatusAnswer::toXmlRpcValue() const
{
    return quv::writtenDriverStatus<MixerStatus, MixerStatusAnswer>(*this);
}

QList<quv::MemberFacts> MixerDriverStatusAnswer::memberFacts()
{
    return quv::driverStatusFacts<MixerStatus, MixerStatusAnswer>(noStatus, noAnswer, noAnswerInList);
}
