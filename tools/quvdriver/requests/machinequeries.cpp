// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/machinequeries.h"

#include "requests/driverqueries.h"
#include "requests/refusal.h"

#include "catalogue/protocommandlist.h"
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

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_mixer.h>

#include <optional>

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

std::unique_ptr<ProtoAnswer> plainAnswer()
{
    return std::make_unique<ConfProtoAnswer>();
}

/// What the machine's firmware tells; nothing of one that refuses to.
template <class Answer>
std::optional<Answer> told(DrivenMachine &machine, ProtoCommandList::CommandListValue question, int module)
{
    const QString code = ProtoCommandList::cmdCode(ProtoCommandList::cmdStr(question), machine.family());
    const FirmwareReply reply = machine.exchange(code, module, {});
    if (reply.refused)
        return std::nullopt;
    try {
        return Answer(reply.tokens);
    } catch (const FW_Exception &error) {
        throw CallRefusal{InvalidSerialAnswer, FW_DriverError(error.code(), error.text())};
    }
}

template <class Answer, class Status, class Word>
std::unique_ptr<ProtoAnswer> pairOf(const Status &status, const std::optional<Word> &word)
{
    return std::make_unique<Answer>(&status, word ? &*word : nullptr);
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
    QList<DispenserStatus> dispensers;
    QList<MixerStatus> mixers;
    for (const auto &machine : knowledge.machines.all()) {
        if (machine->type() == SerialDeviceType::Dispenser)
            dispensers.append(statusOf<DispenserStatus, FW_Dispenser>(*machine, knowledge));
        else
            mixers.append(statusOf<MixerStatus, FW_Mixer>(*machine, knowledge));
    }
    return std::make_unique<GetActiveDispAnswer>(dispensers, mixers);
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
    const auto word = told<DispenserStatusAnswer>(*knowledge.machine, ProtoCommandList::GET_STATUS, position);
    return pairOf<DispenserDriverStatusAnswer>(
        statusOf<DispenserStatus, FW_Dispenser>(*knowledge.machine, knowledge), word);
}

std::unique_ptr<ProtoAnswer> mixerStatus(const ProtoCommand & /*command*/, const DriverKnowledge &knowledge)
{
    const auto word = told<MixerStatusAnswer>(*knowledge.machine, ProtoCommandList::MIXER_STATUS, 0);
    return pairOf<MixerDriverStatusAnswer>(statusOf<MixerStatus, FW_Mixer>(*knowledge.machine, knowledge),
                                           word);
}

} // namespace quv
