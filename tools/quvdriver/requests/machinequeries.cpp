// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/machinequeries.h"

#include "machines/questions.h"
#include "requests/driverqueries.h"

#include "sessions/certifysessionanswer.h"
#include "sessions/certifysessioncmd.h"
#include "sessions/getkeyanswer.h"
#include "sessions/getkeycmd.h"
#include "sessions/loginanswer.h"
#include "sessions/logincmd.h"
#include "sessions/logoutcmd.h"
#include "setup/setactivedispcmd.h"
#include "setup/setactivemachinecmd.h"
#include "status/dispenserdriverstatusanswer.h"
#include "status/dispenserdriverstatuscmd.h"
#include "status/dispenserstatusanswer.h"
#include "status/getactivedispanswer.h"
#include "status/mixerdriverstatusanswer.h"
#include "status/mixerstatusanswer.h"

#include <QuvFramework/fw_mixer.h>

namespace quv {
namespace {

bool isActive(const DrivenMachine &machine, const DriverKnowledge &knowledge)
{
    return knowledge.machines.active(machine.type()) == &machine;
}

/// What the driver has under way on a machine. Nobody reaches a simulated one by a link that has a name.
template <class Status, class Machine>
Status statusOf(const DrivenMachine &machine, const DriverKnowledge &knowledge)
{
    const std::unique_ptr<FW_Machine> copy = machine.copy();
    return Status(dynamic_cast<const Machine &>(*copy), QString(), true, isActive(machine, knowledge));
}

template <class Status, class Machine>
QList<Status> statusesOf(SerialDeviceType type, const DriverKnowledge &knowledge)
{
    QList<Status> statuses;
    for (const auto &machine : knowledge.machines.all()) {
        if (machine->type() == type)
            statuses.append(statusOf<Status, Machine>(*machine, knowledge));
    }
    return statuses;
}

QList<DispenserStatus> dispensersOf(const DriverKnowledge &knowledge)
{
    return statusesOf<DispenserStatus, FW_Dispenser>(SerialDeviceType::Dispenser, knowledge);
}

QList<MixerStatus> mixersOf(const DriverKnowledge &knowledge)
{
    return statusesOf<MixerStatus, FW_Mixer>(SerialDeviceType::Mixer, knowledge);
}

std::unique_ptr<ProtoAnswer> plainAnswer()
{
    return std::make_unique<ConfProtoAnswer>();
}

template <class Answer, class Status, class Word>
std::unique_ptr<ProtoAnswer> pairOf(const Status &status, const std::unique_ptr<Word> &word)
{
    return std::make_unique<Answer>(&status, word.get());
}

} // namespace

std::unique_ptr<ProtoAnswer> logIn(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const Session &login = dynamic_cast<const LoginCmd &>(command).session();
    auto answer = std::make_unique<LoginAnswer>();
    answer->setSessionID(QVariant(knowledge.sessions.open(login, knowledge.machines.get(login.machine))));
    return answer;
}

std::unique_ptr<ProtoAnswer> exchangeKeys(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const auto &exchange = dynamic_cast<const GetKeyCmd &>(command);
    auto answer = std::make_unique<GetKeyAnswer>();
    answer->setDriverKey(
        QVariant(knowledge.sessions.exchangeKeys(exchange.sessionID(), exchange.clientKey())));
    return answer;
}

std::unique_ptr<ProtoAnswer> certifySession(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const auto &shown = dynamic_cast<const CertifySessionCmd &>(command);
    auto answer = std::make_unique<CertifySessionAnswer>();
    answer->setKeyVerifyResult(QVariant(knowledge.sessions.certify(shown.sessionID(), shown.sharedKey())));
    return answer;
}

std::unique_ptr<ProtoAnswer> logOut(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    knowledge.sessions.close(dynamic_cast<const LogoutCmd &>(command).sessionID());
    return plainAnswer();
}

std::unique_ptr<ProtoAnswer> listMachines(const ProtoCommand & /*command*/, const DriverKnowledge &knowledge)
{
    return std::make_unique<GetActiveDispAnswer>(dispensersOf(knowledge), mixersOf(knowledge));
}

std::unique_ptr<ProtoAnswer> listDispensers(const ProtoCommand & /*command*/,
                                            const DriverKnowledge &knowledge)
{
    return std::make_unique<GetActiveDispAnswer>(dispensersOf(knowledge), QList<MixerStatus>());
}

std::unique_ptr<ProtoAnswer> listMixers(const ProtoCommand & /*command*/, const DriverKnowledge &knowledge)
{
    return std::make_unique<GetActiveDispAnswer>(QList<DispenserStatus>(), mixersOf(knowledge));
}

std::unique_ptr<ProtoAnswer> activateDispenser(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const MachineID id(dynamic_cast<const SetActiveDispCmd &>(command).dispID(), SerialDeviceType::Dispenser);
    knowledge.machines.activate(knowledge.machines.get(id));
    return plainAnswer();
}

std::unique_ptr<ProtoAnswer> activateMachine(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const MachineID &id = dynamic_cast<const SetActiveMachineCmd &>(command).machineID();
    knowledge.machines.activate(knowledge.machines.get(id));
    return plainAnswer();
}

std::unique_ptr<ProtoAnswer> dispenserStatus(const ProtoCommand &command, const DriverKnowledge &knowledge)
{
    const int position = dynamic_cast<const DispenserDriverStatusCmd &>(command).positionID();
    const auto word =
        told<DispenserStatusAnswer>(ask(*knowledge.machine, ProtoCommandList::GET_STATUS, position));
    return pairOf<DispenserDriverStatusAnswer>(
        statusOf<DispenserStatus, FW_Dispenser>(*knowledge.machine, knowledge), word);
}

std::unique_ptr<ProtoAnswer> mixerStatus(const ProtoCommand & /*command*/, const DriverKnowledge &knowledge)
{
    const auto word = told<MixerStatusAnswer>(ask(*knowledge.machine, ProtoCommandList::MIXER_STATUS));
    return pairOf<MixerDriverStatusAnswer>(statusOf<MixerStatus, FW_Mixer>(*knowledge.machine, knowledge),
                                           word);
}

} // namespace quv
