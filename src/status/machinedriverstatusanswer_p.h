// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/memberfacts_p.h"
#include "base/objectfield_p.h"
#include "status/machinedriverstatusanswer.h"
#include "status/machinestatus_p.h"

// How the driver's status of a dispenser or a mixer travels: a struct of the two statuses, and of whether the machine takes orders. In a
// list the two statuses.

namespace quv {

struct DriverStatusRefusals
{
    Refusal status;
    Refusal answer;
    Refusal answerInList;
};

template <class Status, class Answer>
void readDriverStatus(const XmlRpc::XmlRpcValue &value, const DriverStatusRefusals &refusals,
                      const char *function, MachineDriverStatusAnswer &target)
{
    const XmlRpc::XmlRpcValue *status = FindXmlRpcMember(value, MachineDriverStatusAnswer::driverStatus_TAG);
    madeOrRefused(refusals.status, function, [&] {
        target.setMachineStatus(pointerTo(optionalObject<Status>(status, refusals.status, function)));
    });
    const XmlRpc::XmlRpcValue *answer = FindXmlRpcMember(value, MachineDriverStatusAnswer::dispStatus_TAG);
    madeOrRefused(refusals.answer, function, [&] {
        target.setMachineStatusAnswer(pointerTo(optionalObject<Answer>(answer, refusals.answer, function)));
    });
}

template <class Status, class Answer>
void readDriverStatus(const QList<QVariant> &list, const DriverStatusRefusals &refusals, const char *function,
                      MachineDriverStatusAnswer &target)
{
    madeOrRefused(refusals.status, function, [&] {
        target.setMachineStatus(pointerTo(optionalObject<Status>(list, 0, refusals.status, function)));
    });
    madeOrRefused(refusals.answerInList, function, [&] {
        target.setMachineStatusAnswer(
            pointerTo(optionalObject<Answer>(list, 1, refusals.answerInList, function)));
    });
}

/** A status of another kind of machine does not travel. */
template <class Status, class Answer>
XmlRpc::XmlRpcValue writtenDriverStatus(const MachineDriverStatusAnswer &source)
{
    using Answers = MachineDriverStatusAnswer;
    const auto *status = dynamic_cast<const Status *>(source.machineStatus());
    const auto *answer = dynamic_cast<const Answer *>(source.machineStatusAnswer());
    XmlRpc::XmlRpcValue value;
    value[Answers::driverStatus_TAG] = status ? status->toXmlRpcValue() : XmlRpc::XmlRpcValue(0);
    value[Answers::dispStatus_TAG] = answer ? answer->toXmlRpcValue() : XmlRpc::XmlRpcValue(0);
    value[Answers::posAvailable_TAG] = source.acceptPOScommands();
    value[Answers::posReady_TAG] = source.readyForPOScommands();
    return value;
}

template <class Status, class Answer>
QList<MemberFacts> driverStatusFacts(const DriverStatusRefusals &refusals)
{
    using Answers = MachineDriverStatusAnswer;
    static constexpr FieldType statusType = objectType<Status>();
    static constexpr FieldType answerType = objectType<Answer>();
    std::vector<MemberRow> rows(4);
    rows[0].key = Answers::driverStatus_TAG;
    rows[0].type = &statusType;
    rows[0].missing = rows[0].inList = refusals.status;
    rows[0].meaning = "what the driver has under way on the machine; the int 0 when it does not know it";
    rows[1].key = Answers::dispStatus_TAG;
    rows[1].type = &answerType;
    rows[1].missing = refusals.answer;
    rows[1].inList = refusals.answerInList;
    rows[1].meaning = "the last status that the machine told; the int 0 when there is none";
    rows[2].key = Answers::posAvailable_TAG;
    rows[2].type = rows[3].type = &fieldType<bool>();
    rows[2].meaning = "active, and the driver has nothing else under way on it";
    rows[3].key = Answers::posReady_TAG;
    rows[3].meaning = "the same, and the machine is at rest and takes commands";
    return factsOf(rows);
}

} // namespace quv
