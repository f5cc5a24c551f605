// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/driver.h"

#include "excerpt.h"
#include "machines/refusal.h"
#include "procedures/machineconfiguration.h"
#include "procedures/procedures.h"
#include "requests/commandbuilder.h"
#include "requests/dispensedformula.h"
#include "requests/driverqueries.h"
#include "requests/firmwarerefusal.h"
#include "requests/request.h"

#include "base/asyncanswer.h"
#include "base/nccommand.h"
#include "base/protoanswer.h"
#include "base/serialprotocommand.h"
#include "base/xmlrpcanswer.h"
#include "configuration/writeconfigurationparamcmd.h"

#include <QuvFramework/fw_exception.h>

#include <xmlrpcpp/XmlRpcException.h>

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <new>
#include <optional>
#include <stdexcept>

namespace quv {
namespace {

using std::chrono::milliseconds;
using XmlRpc::XmlRpcValue;

constexpr int UnknownMethod = -32601;
constexpr milliseconds ShortestInterval(10);
constexpr milliseconds LongestTimeout(600000);

/// The library's texts repeat what came as a whole.
FW_DriverError bounded(const FW_DriverError &error)
{
    constexpr int LongestText = 1000;
    if (error.text().size() <= LongestText)
        return error;
    return FW_DriverError(error.code(), error.text().left(LongestText) + QStringLiteral("..."));
}

XmlRpcValue failure(RetCode retCode, const FW_DriverError &error, const QString &name)
{
    return ErrorAnswer::getDriverErrorReturn(retCode, bounded(error), name);
}

XmlRpcValue unforeseen(const QString &text, const QString &name)
{
    return failure(OtherFailure, FW_DriverError(QStringLiteral("DE03110"), text), name);
}

[[noreturn]] void refuseWithoutCode()
{
    refuse(UnknownToFirmware, "DE03105",
           QStringLiteral("The machine's firmware has no code for this command"));
}

/// What \a work gives, or the envelope of what it throws.
template <class Work>
XmlRpcValue enveloped(const QString &name, Work work)
{
    try {
        return work();
    } catch (const CallRefusal &refusal) {
        return ErrorAnswer::getErrorReturn(refusal.retCode, refusal.answer, refusal.errors, name);
    } catch (const FW_Exception &error) {
        FW_ErrorList errors;
        errors.append(bounded(error));
        // The message of the envelope is Latin-1, so a name of any other script is told here.
        if (!ProtoCommandList::existsCommand(name))
            errors.append(FW_DriverError(QStringLiteral("DE03103"),
                                         QStringLiteral("The catalogue has no command \"%1\"").arg(name)));
        return ErrorAnswer::getErrorReturn(InvalidRequest, errors, name);
    } catch (const std::exception &error) {
        return unforeseen(QString::fromUtf8(error.what()), name);
    } catch (const XmlRpc::XmlRpcException &error) { // no std::exception
        return unforeseen(QString::fromStdString(error.getMessage()), name);
    }
}

/// Makes \a value what \a make gives, without a copy: values cannot be moved, and a status has a hundred members.
template <class Make>
void makeInPlace(XmlRpcValue &value, Make make)
{
    value.~XmlRpcValue();
    try {
        new (&value) XmlRpcValue(make());
    } catch (...) {
        new (&value) XmlRpcValue();
        throw;
    }
}

XmlRpcValue success(const ProtoAnswer &answer, const QString &name, qint64 time,
                    const FW_ErrorList &errors = {})
{
    XmlRpcValue envelope = XmlRpcAnswer(Done, XmlRpcValue(), errors, name, time).toXmlRpcValue();
    XmlRpcValue &retValue = envelope[XmlRpcAnswer::xmlrpcRetValue_TAG];
    makeInPlace(retValue, [&] { return answer.toXmlRpcValue(); });
    if (!retValue.valid())
        retValue = 0;
    return envelope;
}

/// Nothing for another method.
std::optional<ProtoCommandList::CallKind> kindOf(const MethodCall &call)
{
    for (const auto kind :
         {ProtoCommandList::BlockingCall, ProtoCommandList::NonBlockingCall, ProtoCommandList::ChangeCall}) {
        if (call.method == ProtoCommandList::functionCallStr(kind))
            return kind;
    }
    return std::nullopt;
}

/// \throws FaultException
ProtoCommandList::CallKind knownKindOf(const MethodCall &call)
{
    if (const auto kind = kindOf(call))
        return *kind;
    throw FaultException({UnknownMethod, QStringLiteral("Unknown method \"%1\"").arg(excerpt(call.method))});
}

/// A call in the form of its own that waits for a change: its arguments must not be taken for plain ones.
bool isChangeCall(ProtoCommandList::CallKind kind, const Request &request)
{
    return kind == ProtoCommandList::ChangeCall && ProtoCommandList::existsCommand(request.name) &&
           request.isWaiting();
}

/// A question for the status that is answered at once.
bool asksForStatus(ProtoCommandList::CallKind kind, const Request &request)
{
    return kind != ProtoCommandList::NonBlockingCall && !isChangeCall(kind, request) &&
           request.name == ProtoCommandList::cmdStr(ProtoCommandList::GET_STATUS);
}

/// The envelope that \a work makes of what \a call asks for.
template <class Work>
XmlRpcValue withRequest(const MethodCall &call, const Request::IsSession &isSession, Work work)
{
    std::optional<Request> request;
    XmlRpcValue refused = enveloped(QString(), [&] {
        request.emplace(call.params, isSession);
        return XmlRpcValue();
    });
    return request ? enveloped(request->name, [&] { return work(*request); }) : refused;
}

/// A firmware that has the code that tells more of each circuit gets tints and purges by it.
bool isSpokenAsTint2(const SerialProtoCommand &command, const DrivenMachine &machine)
{
    const QString name = command.command();
    return (name == ProtoCommandList::cmdStr(ProtoCommandList::TINT) ||
            name == ProtoCommandList::cmdStr(ProtoCommandList::PURGE)) &&
           machine.abilities().hasTint2();
}

FirmwareReply sendCommand(const SerialProtoCommand &command, DrivenMachine &machine)
{
    const int family = machine.family();
    const QString code = ProtoCommandList::cmdCode(command.command(), family);
    FirmwareReply reply = machine.exchange(code, command.moduleID(), command.serialParameters(family));
    if (reply.refused)
        refuseAsFirmware(code, reply);
    return reply;
}

void checkWaiting(const NCCommand &asked)
{
    if (ProtoCommandList::erogationCommand(asked.command()))
        refuse(
            InvalidRequest, "DE03115",
            QStringLiteral("A command that pours cannot wait for a change: it would pour again and again"));
    if (const Procedure *procedure = procedureOf(asked.command());
        procedure && procedure->engages != Engages::Nothing)
        refuse(InvalidRequest, "DE03415",
               QStringLiteral("%1 cannot wait for a change: it would be carried out again and again")
                   .arg(asked.command()));
    if (milliseconds(asked.interval()) < ShortestInterval || asked.timeout() < 0 ||
        milliseconds(asked.timeout()) > LongestTimeout)
        refuse(InvalidRequest, "DE03114",
               QStringLiteral("The interval must be at least %1 ms, the timeout 0 to %2 ms")
                   .arg(ShortestInterval.count())
                   .arg(LongestTimeout.count()));
}

} // namespace

/// A command on its way.
struct Driver::Task
{
    QString name{};
    DrivenMachine *machine = nullptr; ///< that the command is for; null for none
    std::unique_ptr<ProtoCommand> command{};
    const Procedure *procedure = nullptr; ///< that carries it out, if any
    std::shared_ptr<Engagement> engagement{};
    std::shared_ptr<Progress> progress{}; ///< of a procedure, or what has a ticket
};

Driver::Driver() = default;

Driver::~Driver()
{
    stop();
}

bool Driver::addMachine(std::unique_ptr<FW_Machine> machine, std::unique_ptr<Firmware> firmware,
                        Abilities abilities)
{
    return m_machines.add(
        std::make_unique<DrivenMachine>(std::move(machine), std::move(firmware), std::move(abilities)));
}

XmlRpcValue Driver::call(const MethodCall &call, Ending &gone)
{
    const auto kind = knownKindOf(call);
    return withRequest(call, sessionTest(),
                       [&](const Request &request) { return carryOut(kind, request, gone); });
}

QByteArray Driver::reply(const MethodCall &call, Ending &gone)
{
    const auto kind = knownKindOf(call);
    StatusSource source;
    QByteArray written;
    const XmlRpcValue envelope = withRequest(call, sessionTest(), [&](const Request &request) {
        return asksForStatus(kind, request) ? askStatus(request, source, written)
                                            : carryOut(kind, request, gone);
    });
    if (!written.isEmpty())
        return written;
    written = writeMethodResponse(envelope);
    if (!source.tokens.isEmpty())
        m_statusReplies.keep(source, written);
    return written;
}

std::function<bool(const QString &)> Driver::sessionTest()
{
    return [this](const QString &id) { return m_sessions.isOpen(id); };
}

bool Driver::mayLast(const MethodCall &call)
{
    const auto kind = kindOf(call);
    if (!kind || *kind == ProtoCommandList::NonBlockingCall)
        return false;
    try {
        const Request request(call.params);
        const Procedure *procedure = procedureOf(request.name);
        return (procedure && procedure->lasts) || isChangeCall(*kind, request);
    } catch (const CallRefusal &) {
        return false; // refused at once
    }
}

XmlRpcValue Driver::refuseLongCall(const MethodCall &call)
{
    return withRequest(call, {}, [](const Request & /*request*/) -> XmlRpcValue {
        refuse(NotCarriedOut, "DE03130",
               QStringLiteral("Too many calls wait for their end; a call with a ticket (EXEC_NB) does not"));
    });
}

XmlRpcValue Driver::carryOut(ProtoCommandList::CallKind kind, const Request &request, Ending &gone)
{
    if (isChangeCall(kind, request))
        return waitForChange(request, gone);
    std::shared_ptr<Task> task = prepare(request);
    return kind == ProtoCommandList::NonBlockingCall ? begin(std::move(task)) : perform(*task);
}

/// Builds the command, checks that there is somebody to carry it out, and begins its procedure.
std::shared_ptr<Driver::Task> Driver::prepare(const Request &request)
{
    auto task = std::make_shared<Task>();
    task->name = request.name;
    task->machine = machineFor(request);
    task->command = buildCommand(request.name, request.arguments, task->machine);
    checkCarriedOut(*task);
    task->procedure = procedureOf(request.name);
    if (!task->procedure)
        return task;
    engage(*task);
    if (task->procedure->engages == Engages::Pumps) // only now do the levels and the turntable stand still
        task->command = buildCommand(request.name, request.arguments, task->machine);
    return task;
}

/// Takes what of the machine the procedure needs.
void Driver::engage(Task &task)
{
    if (task.procedure->check)
        task.procedure->check(*task.command);
    QString other;
    task.engagement = task.machine->engage(task.name, task.procedure->engages, &other);
    if (task.engagement)
        return;
    if (task.procedure->engages == Engages::Pumps)
        refuse(NotCarriedOut, "DE03112",
               QStringLiteral("The machine is at %1 and pours once at a time").arg(other));
    refuse(NotCarriedOut, "DE03416",
           QStringLiteral("The machine is at %1 and stirs its circuits in one series at a time").arg(other));
}

void Driver::checkCarriedOut(const Task &task)
{
    if (!dynamic_cast<const SerialProtoCommand *>(task.command.get())) {
        checkDriverQuery(task.name, task.machine);
        return;
    }
    if (!task.machine)
        refuseWithoutMachine();
    if (!needsCode(*task.command))
        return;
    if (ProtoCommandList::cmdCode(task.name, task.machine->family()).isEmpty())
        refuseWithoutCode();
    task.machine->abilities().require(*task.command);
}

/// Gives a ticket, and goes on behind the client's back.
XmlRpcValue Driver::begin(std::shared_ptr<Task> task)
{
    const QString name = task->name;
    const bool isPour = task->procedure && task->procedure->engages == Engages::Pumps;
    const bool lasts = task->procedure && task->procedure->lasts;
    if (!task->progress)
        task->progress = std::make_shared<Progress>(estimatedTime(*task->command, task->machine));
    const std::shared_ptr<Progress> progress = task->progress;
    const auto ticket = m_tickets.add(
        [this, task = std::move(task)] { return enveloped(task->name, [&] { return perform(*task); }); },
        progress, isPour ? Tickets::UntilRead : Tickets::Shortly, lasts ? Tickets::Lasting : Tickets::Quick);
    if (!ticket)
        refuse(NotCarriedOut, "DE03113", QStringLiteral("Too many commands wait for their turn"));
    return success(AsyncAnswer(*ticket), name, 0);
}

XmlRpcValue Driver::perform(Task &task)
{
    QElapsedTimer timer;
    timer.start();
    FW_ErrorList errors;
    if (task.procedure) {
        errors = runProcedure(task);
    } else if (auto *serial = dynamic_cast<SerialProtoCommand *>(task.command.get())) {
        takeAnswer(*serial, askFirmware(*serial, task));
        finish(task);
    } else {
        const auto answer =
            answerDriverQuery(*task.command, {m_tickets, m_sessions, m_machines, task.machine});
        task.command->setProtoAnswer(answer.get());
    }
    return success(*task.command->getProtoAnswer(), task.name, timer.elapsed(), errors);
}

FW_ErrorList Driver::runProcedure(Task &task)
{
    const auto ask = [&task](SerialProtoCommand &command) {
        Task step;
        step.name = command.command();
        step.machine = task.machine;
        if (ProtoCommandList::cmdCode(step.name, task.machine->family()).isEmpty())
            refuseWithoutCode();
        takeAnswer(command, askFirmware(command, step));
    };
    if (!task.progress)
        task.progress = std::make_shared<Progress>(
            task.procedure->lasts ? estimatedTime(*task.command, task.machine) : 0);
    task.command->clearProtoAnswer(); // of the time before, when it waits for a change
    Engagement &engagement = *task.engagement;
    ProcedureRun run{*task.command, *task.machine, ask, task.progress, engagement.stopped, m_ending};
    FW_ErrorList errors = task.procedure->run(run);
    if (!task.command->getProtoAnswer()) {
        ConfProtoAnswer nothing;
        task.command->setProtoAnswer(&nothing);
    }
    return errors;
}

/// The envelope with the status and its \a source, or \a written, the document of a reply that followed from the same.
XmlRpcValue Driver::askStatus(const Request &request, StatusSource &source, QByteArray &written)
{
    const std::shared_ptr<Task> task = prepare(request);
    auto &command = dynamic_cast<SerialProtoCommand &>(*task->command);
    QElapsedTimer timer;
    timer.start();
    const FirmwareReply reply = askFirmware(command, *task);
    const StatusSource told{command.moduleID(), reply.tokens, timer.elapsed()};
    written = m_statusReplies.find(told);
    if (!written.isEmpty())
        return {};
    takeAnswer(command, reply);
    source = told; // only now: a failure tells when it happened, so it is another each time
    return success(*command.getProtoAnswer(), task->name, told.time);
}

FirmwareReply Driver::askFirmware(const SerialProtoCommand &command, const Task &task)
{
    if (isSpokenAsTint2(command, *task.machine)) {
        const std::unique_ptr<SerialProtoCommand> spoken(command.clone());
        spoken->setCommand(ProtoCommandList::cmdStr(ProtoCommandList::TINT2));
        return sendCommand(*spoken, *task.machine);
    }
    return sendCommand(command, *task.machine);
}

void Driver::takeAnswer(SerialProtoCommand &command, const FirmwareReply &reply)
{
    FW_DriverError error;
    if (!command.setSerialAnswer(reply.tokens, &error))
        throw CallRefusal{InvalidSerialAnswer, error};
}

/// What the driver does when the firmware has taken the command.
void Driver::finish(const Task &task)
{
    if (task.name == ProtoCommandList::cmdStr(ProtoCommandList::GET_DISPENSED_FORMULA))
        answerAsAsked(*task.command, *task.machine);
    if (task.name == ProtoCommandList::cmdStr(ProtoCommandList::CLEAR_ERRORS))
        task.machine->errorsCleared();
    const auto *write = dynamic_cast<const WriteConfigurationParamCmd *>(task.command.get());
    if (write && write->confData())
        task.machine->rowWritten(writtenRow(*write->confData()));
}

XmlRpcValue Driver::waitForChange(const Request &request, Ending &gone)
{
    using Clock = std::chrono::steady_clock;

    Task task;
    task.name = request.name;
    task.machine = machineFor(request);
    const std::unique_ptr<FW_Machine> copy = task.machine ? task.machine->copy() : nullptr;
    XmlRpcValue arguments = request.arguments;
    const NCCommand asked(request.name, arguments, copy.get());
    checkWaiting(asked);
    task.command.reset(asked.protoCommand()->clone());
    checkCarriedOut(task);
    task.procedure = procedureOf(request.name);
    if (task.procedure)
        engage(task);

    const Ending ending{&m_ending, &gone};
    const auto end = Clock::now() + milliseconds(asked.timeout());
    while (true) {
        const XmlRpcValue envelope = perform(task);
        const ProtoAnswer *answer = task.command->getProtoAnswer();
        const auto left = std::chrono::duration_cast<milliseconds>(end - Clock::now());
        if (!asked.lastAnswer() || !answer->equalTo(asked.lastAnswer()) || left.count() <= 0)
            return envelope;
        if (ending.wait(std::min(milliseconds(asked.interval()), left)))
            continue;
        if (gone.hasBegun())
            refuse(Interrupted, "DE03131",
                   QStringLiteral("The client has gone before the answer has changed"));
        refuse(Interrupted, "DE03116", QStringLiteral("The driver ends before the command has"));
    }
}

/// The session's machine, or without a session the active one. Of what is for the driver itself it may be any, or null; a time is
/// that of the machine that the command would go to.
DrivenMachine *Driver::machineFor(const Request &request)
{
    const QString estimated = estimatedCommand(request.name, request.arguments);
    const QString name = ProtoCommandList::addressMachine(estimated) ? estimated : request.name;
    DrivenMachine *active = m_machines.activeFor(name);
    if (request.session.isEmpty()) {
        if (!active && name != request.name)
            refuseWithoutMachine();
        return active;
    }
    DrivenMachine &machine = m_sessions.machineOf(request.session);
    const bool fits = machine.type() == SerialDeviceType::Dispenser
                          ? ProtoCommandList::targetIsDispenser(name)
                          : ProtoCommandList::targetIsMixer(name);
    if (fits)
        return &machine;
    if (ProtoCommandList::addressMachine(name))
        refuse(NotConfigured, "DE03402",
               QStringLiteral("%1 is not for a %2, which is the machine of the session")
                   .arg(name, kindInWords(machine.type())));
    return active;
}

} // namespace quv
