// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/machinedriverstatusanswer.h"

#include "base/cloned_p.h"
#include "base/protoanswer.h"
#include "status/machinedriverstatusanswer_p.h"

#include <algorithm>

namespace {

constexpr int atRest = 1;

/** Statuses of machines are answers, too, which compare all that they hold. */
bool isSame(const MachineStatusAnswer &left, const MachineStatusAnswer &right)
{
    const auto *answer = dynamic_cast<const ProtoAnswer *>(&left);
    return answer ? answer->equalTo(dynamic_cast<const ProtoAnswer *>(&right)) : left == right;
}

bool isSame(const MachineStatus &left, const MachineStatus &right)
{
    return left == right;
}

template <class T>
bool areSame(const T *left, const T *right)
{
    return left && right ? isSame(*left, *right) : left == right;
}

QString withoutName(QString text, const QString &name)
{
    return text.replace(name, QStringLiteral("…"));
}

} // namespace

void quv::appendRefusalsOf(const QList<MemberFacts> &parts, MemberFacts &member)
{
    QList<QPair<RefusalFacts, QString>> told; // each with its text for any part
    for (const MemberFacts &part : parts) {
        for (const RefusalFacts &refusal : part.refusals) {
            const QString text = withoutName(refusal.text, part.key);
            const auto known = std::find_if(told.begin(), told.end(), [&](const auto &one) {
                return one.first.code == refusal.code && one.second == text;
            });
            if (known == told.end())
                told.append({{refusal.form, "without a good " + part.key, refusal.code, refusal.text}, text});
            else
                known->first = {refusal.form, "without a good member", refusal.code, text};
        }
    }
    for (const auto &one : told)
        member.refusals.append(one.first);
}

MachineDriverStatusAnswer::MachineDriverStatusAnswer() = default;

MachineDriverStatusAnswer::MachineDriverStatusAnswer(const MachineStatus *status,
                                                     const MachineStatusAnswer *answer)
    : m_status(quv::cloned(status)),
      m_answer(quv::cloned(answer))
{}

MachineDriverStatusAnswer::MachineDriverStatusAnswer(const MachineDriverStatusAnswer &other)
    : MachineDriverStatusAnswer(other.machineStatus(), other.machineStatusAnswer())
{}

MachineDriverStatusAnswer &MachineDriverStatusAnswer::operator=(const MachineDriverStatusAnswer &other)
{
    setMachineStatus(other.machineStatus());
    setMachineStatusAnswer(other.machineStatusAnswer());
    return *this;
}

MachineDriverStatusAnswer::~MachineDriverStatusAnswer() = default;

void MachineDriverStatusAnswer::setMachineStatus(const MachineStatus *status)
{
    m_status = quv::cloned(status);
}

void MachineDriverStatusAnswer::setActiveMachine(bool active)
{
    if (m_status)
        m_status->active = active;
}

void MachineDriverStatusAnswer::setMachineStatusAnswer(const MachineStatusAnswer *answer)
{
    m_answer = quv::cloned(answer);
}

bool MachineDriverStatusAnswer::acceptCommands() const
{
    return m_answer && m_answer->acceptCommands();
}

bool MachineDriverStatusAnswer::acceptProcessCommands() const
{
    return acceptCommands() && m_answer->status() == atRest;
}

bool MachineDriverStatusAnswer::acceptPOScommands() const
{
    return m_status && m_status->active && !m_status->conf_mng && !m_status->fw_update &&
           !m_status->stats_mng;
}

bool MachineDriverStatusAnswer::readyForPOScommands() const
{
    return acceptPOScommands() && acceptProcessCommands() && m_answer->normal_wm && !m_answer->BL_active;
}

bool MachineDriverStatusAnswer::operator==(const MachineDriverStatusAnswer *other) const
{
    return other && areSame(machineStatus(), other->machineStatus()) &&
           areSame(machineStatusAnswer(), other->machineStatusAnswer());
}
