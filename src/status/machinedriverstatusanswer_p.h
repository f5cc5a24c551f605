// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/memberfacts_p.h"
#include "base/objectfield_p.h"
#include "status/machinedriverstatusanswer.h"
#include "status/machinestatus_p.h"

// How the driver's status of a dispenser or a mixer travels: a struct of the two statuses, and of whether the machine takes
// orders. In a list the two statuses.

namespace quv {

template <class Status, class Answer>
void readDriverStatus(const XmlRpc::XmlRpcValue &value, const Refusal &noStatus, const Refusal &noAnswer,
                      const char *function, MachineDriverStatusAnswer &target)
{
    const XmlRpc::XmlRpcValue *status = FindXmlRpcMember(value, MachineDriverStatusAnswer::driverStatus_TAG);
    madeOrRefused(noStatus, function, [&] {
        target.setMachineStatus(pointerTo(optionalObject<Status>(status, noStatus, function)));
    });
    const XmlRpc::XmlRpcValue *answer = FindXmlRpcMember(value, MachineDriverStatusAnswer::dispStatus_TAG);
    madeOrRefused(noAnswer, function, [&] {
        target.setMachineStatusAnswer(pointerTo(optionalObject<Answer>(answer, noAnswer, function)));
    });
}

template <class Status, class Answer>
void readDriverStatus(const QList<QVariant> &list, const Refusal &noStatus, const Refusal &noAnswer,
                      const char *function, MachineDriverStatusAnswer &target)
{
    madeOrRefused(noStatus, function, [&] {
        target.setMachineStatus(pointerTo(optionalObject<Status>(list, 0, noStatus, function)));
    });
    madeOrRefused(noAnswer, function, [&] {
        target.setMachineStatusAnswer(pointerTo(optionalObject<Answer>(list, 1, noAnswer, function)));
    });
}

/** A status of another kind of machine does not travel, and the flags tell of what travels. */
template <class Status, class Answer>
XmlRpc::XmlRpcValue writtenDriverStatus(const MachineDriverStatusAnswer &source)
{
    using Answers = MachineDriverStatusAnswer;
    const auto *status = dynamic_cast<const Status *>(source.machineStatus());
    const auto *answer = dynamic_cast<const Answer *>(source.machineStatusAnswer());
    XmlRpc::XmlRpcValue value;
    value[Answers::driverStatus_TAG] = status ? status->toXmlRpcValue() : XmlRpc::XmlRpcValue(0);
    value[Answers::dispStatus_TAG] = answer ? answer->toXmlRpcValue() : XmlRpc::XmlRpcValue(0);
    value[Answers::posAvailable_TAG] = status && answer && source.acceptPOScommands();
    value[Answers::posReady_TAG] = status && answer && source.readyForPOScommands();
    return value;
}

/** What refuses the object that a member is, by its own members; those with one text but for their names are one. */
void appendRefusalsOf(const QList<MemberFacts> &parts, MemberFacts &member);

template <class Status, class Answer>
QList<MemberFacts> driverStatusFacts(const Refusal &noStatus, const Refusal &noAnswer,
                                     const Refusal &noAnswerInList)
{
    using Answers = MachineDriverStatusAnswer;
    static constexpr FieldType statusType = objectType<Status>();
    static constexpr FieldType answerType = objectType<Answer>();
    std::vector<MemberRow> rows(4);
    rows[0].key = Answers::driverStatus_TAG;
    rows[0].type = &statusType;
    rows[0].missing = rows[0].inList = noStatus;
    rows[0].meaning = "what the driver has under way on the machine; the int 0 when it does not know it";
    rows[1].key = Answers::dispStatus_TAG;
    rows[1].type = &answerType;
    rows[1].missing = noAnswer;
    rows[1].inList = noAnswerInList;
    rows[1].meaning = "the last status that the machine told; the int 0 when there is none";
    rows[2].key = Answers::posAvailable_TAG;
    rows[2].type = rows[3].type = &fieldType<bool>();
    rows[2].meaning = "active, with a last status, and the driver has nothing else under way on it";
    rows[3].key = Answers::posReady_TAG;
    rows[3].meaning = "the same, and the machine is at rest and takes commands";
    QList<MemberFacts> facts = factsOf(rows);
    appendRefusalsOf(Answer::memberFacts(), facts[1]);
    return facts;
}

} // namespace quv
