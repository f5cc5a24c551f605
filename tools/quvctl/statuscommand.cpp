// SPDX-License-Identifier: LGPL-3.0-or-later
#include "askedstatus.h"
#include "bar.h"
#include "canisters.h"
#include "durationwords.h"
#include "executed.h"
#include "machineerrors.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"
#include "words.h"

#include "base/dispenserinfo.h"
#include "base/mixerinfo.h"
#include "dispensing/genericformulacmd.h"
#include "dispensing/getformulaexecutionanswer.h"
#include "status/dispenserstatusanswer.h"
#include "status/getactivedispanswer.h"
#include "status/mixerstatusanswer.h"

#include <QuvFramework/formulaprogress.h>

namespace quv {

namespace {

/// What one screen tells. What the driver does not tell is missing.
struct Screen
{
    /// Asks the driver. \throws as StatusQuestion::ask
    explicit Screen(const Driver &driver);
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;
    ~Screen() = default;

    bool isMixer = false;
    ToldStatus status{};
    std::unique_ptr<const MachineInfo> machine{};
    int number = 0; ///< of the machine; 0 when nobody tells it
    FormulaProgress pours{};
    std::optional<QList<CanisterData>> canisters{};
    std::optional<FW_ErrorList> errors{};
};

/// The machine of the list that is meant: that of the number, or the active one.
template <class Status>
const Status *meantOf(const QList<Status> &machines, const QList<int> &numbers, std::optional<int> number)
{
    for (int i = 0; i < machines.size(); ++i)
        if (number ? numbers.at(i) == *number : machines.at(i).active)
            return &machines.at(i);
    return nullptr;
}

template <class Status, class Info>
void takeMachine(Screen &screen, const Status *status, const Info *(Status::*infoOf)() const,
                 int Info::*number)
{
    const Info *info = status ? (status->*infoOf)() : nullptr;
    if (!info)
        return;
    screen.machine.reset(info->clone());
    screen.number = info->*number;
}

void takeMachine(Screen &screen, const Driver &driver)
{
    const auto list = answerIfAny<GetActiveDispAnswer>(ProtoCommandList::GET_ACTIVE_DISP, driver);
    if (!list)
        return;
    const std::optional<int> number = driver.chosen() ? driver.chosen()->id : std::nullopt;
    if (screen.isMixer)
        takeMachine(screen, meantOf(list->mixers(), list->getMixerIDs(), number), &MixerStatus::mixerInfo,
                    &MixerInfo::mixer_id);
    else
        takeMachine(screen, meantOf(list->dispensers(), list->getDispenserIDs(), number),
                    &DispenserStatus::dispenserInfo, &DispenserInfo::disp_id);
}

/// What is poured at this moment; its formula is not told to find it.
FormulaProgress poursOf(const Driver &driver)
{
    GenericFormulaCmd command(ProtoCommandList::cmdStr(ProtoCommandList::GET_FORMULA_EXECUTION), Formula());
    return ifTold([&] { return executed<GetFormulaExecutionAnswer>(driver, command).formulaProgress(); })
        .value_or(FormulaProgress());
}

Screen::Screen(const Driver &driver)
{
    StatusQuestion question(driver);
    status = question.ask();
    isMixer = question.isMixer();
    takeMachine(*this, driver);
    errors = errorsOf(driver);
    if (isMixer)
        return;
    pours = poursOf(driver);
    canisters = canistersOf(driver);
}

QString titleOf(const Screen &screen)
{
    QString heading = screen.isMixer ? QStringLiteral("Mixer") : QStringLiteral("Dispenser");
    if (!screen.machine)
        return heading;
    heading += QStringLiteral(" %1").arg(screen.number);
    for (const QString &text : {screen.machine->description, screen.machine->model})
        if (!text.isEmpty())
            heading += QStringLiteral(", ") + text;
    if (!screen.machine->serialNumber.isEmpty())
        heading += QStringLiteral(", serial number ") + screen.machine->serialNumber;
    return heading;
}

QStringList namesIn(const Formula &formula)
{
    QStringList names;
    for (const FormulaItem &item : formula.items())
        names.append(item.id);
    return names;
}

void printPours(const FormulaProgress &pours)
{
    for (const FormulaChannel *channel : pours.formulaChannels()) {
        constexpr int second = 1000;
        printLine(QStringLiteral("  head %1 %2 %3 %, %4 left: %5")
                      .arg(channel->channelID())
                      .arg(bar(channel->percentage()))
                      .arg(channel->percentage())
                      .arg(timeInWords((channel->timeLeft() + second - 1) / second),
                           namesIn(channel->formula()).join(QLatin1Char(' '))));
    }
}

void printMixing(const MixerStatusAnswer &status)
{
    if (status.cycle_id > 0)
        printLine(QStringLiteral("  cycle %1, %2 left, speed %3, force %4")
                      .arg(status.cycle_id)
                      .arg(timeInWords(status.m_timeleft))
                      .arg(status.mixing_speed)
                      .arg(status.clamping_force));
}

ExitStatus print(const Screen &screen)
{
    printLine(titleOf(screen), Colour::Bold);
    const QList<StatusLine> conditions = statusInWords(*screen.status.answer);
    for (const StatusLine &condition : conditions)
        printLine(condition.text, condition.bad ? Colour::Red : Colour::Plain);
    if (conditions.isEmpty())
        printLine(QStringLiteral("At rest"));
    printPours(screen.pours);
    if (const auto *mixer = dynamic_cast<const MixerStatusAnswer *>(screen.status.answer.get()))
        printMixing(*mixer);
    if (screen.canisters && !screen.canisters->isEmpty()) {
        printLine(QString());
        printCanisters(*screen.canisters);
    }
    if (screen.errors && !screen.errors->isEmpty()) {
        printLine(QString());
        printErrors(*screen.errors);
    }
    return Done;
}

ExitStatus printAsJson(const Screen &screen)
{
    OrderedJson reply = success();
    reply["kind"] = screen.isMixer ? "mixer" : "dispenser";
    if (screen.machine)
        reply["machine"] = toJson(screen.machine->toXmlRpcValue());
    OrderedJson status = screen.status.reply;
    status.erase("ok");
    reply["status"] = std::move(status);
    if (!screen.isMixer)
        reply["pours"] = toJson(screen.pours.toXmlRpcValue())[FormulaProgress::CHANNELS];
    if (screen.canisters)
        reply["canisters"] = canistersJson(*screen.canisters);
    if (screen.errors)
        reply["errors"] = errorsJson(*screen.errors);
    printJson(reply);
    return Done;
}

ExitStatus runStatus(const CommandLine &line)
{
    const Driver driver(line);
    const Screen screen(driver);
    return line.isSet("json") ? printAsJson(screen) : print(screen);
}

} // namespace

const Subcommand statusSubcommand = {
    "status",
    "",
    "a machine on one screen",
    "Shows the dispenser, or the machine of --on: what it is, what it does and how far that is, its "
    "canisters\n"
    "with their levels, and its errors. What a driver does not tell is left out.",
    0,
    0,
    withDriverOptions({{"json", nullptr, "all of it as one JSON object"}}),
    runStatus};

} // namespace quv
