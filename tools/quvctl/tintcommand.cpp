// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulawords.h"
#include "hints.h"
#include "operations.h"
#include "replies.h"
#include "stopping.h"
#include "subcommands.h"
#include "terminal.h"
#include "tickets.h"
#include "tintreport.h"
#include "xmlrpcerrors.h"

#include "base/getcmdestimatedexectimeanswer.h"
#include "base/getcmdestimatedexectimecmd.h"
#include "dispensing/checkformulalevelsanswer.h"
#include "dispensing/checkformulalevelscmd.h"
#include "dispensing/tintcmd.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_error.h>

#include <algorithm>
#include <optional>

namespace quv {

namespace {

void warn(int canister, const char *level)
{
    printError(QStringLiteral("warning: canister %1 would fall below its %2 level")
                   .arg(canister)
                   .arg(QLatin1String(level)));
}

/// Tells the canisters that would run low; false when one of them would fall below its critical level.
bool tellLevels(const Driver &driver, const Formula &formula)
{
    CheckFormulaLevelsCmd command(formula, false);
    const auto &answer = executed<CheckFormulaLevelsAnswer>(driver, command);
    const QList<int> critical = answer.canistersBelowCritical();
    for (const int canister : critical)
        warn(canister, "critical");
    for (const int canister : answer.canistersBelowWarning())
        if (!critical.contains(canister))
            warn(canister, "warning");
    return critical.isEmpty();
}

/// The formula as the user typed it, to be sent so; with --force as it can be poured, as far as that is known without the machine.
/// Nothing when it is to be refused, which has been told then.
std::optional<PourOrder> typedOrder(const CommandLine &line)
{
    const Formula asked = formulaOf(line);
    Formula formula = asked;
    const QList<FW_DriverError> wrong = correctAmounts(formula);
    const bool isForced = line.isSet("force");
    for (const FW_DriverError &error : wrong)
        printError((isForced ? QStringLiteral("warning: ") : QString()) + error.text());
    if (wrong.isEmpty() || (isForced && !formula.isEmpty()))
        return PourOrder{asked, formula};
    printError(isForced ? QStringLiteral("nothing is left to pour")
                        : QStringLiteral("hint: ") + hintFor(QStringLiteral("DE03141")));
    if (line.isSet("json"))
        printJson(failureReply(wrong.first()));
    return std::nullopt;
}

/// The amounts that a driver, which knows its circuits, offers in the place of those that it has refused.
std::optional<Formula> offeredFormula(const XmlRpcAnswer &refusal)
{
    const QStringList reasons = refusal.getDriverErrorsStrings();
    const bool isAboutAmounts =
        !reasons.isEmpty() && std::all_of(reasons.begin(), reasons.end(), [](const QString &reason) {
            return reason.startsWith(QLatin1String("DE03140")) || reason.startsWith(QLatin1String("DE03141"));
        });
    if (!isAboutAmounts || refusal.xmlrpcRetValue().getType() != XmlRpc::XmlRpcValue::TypeStruct)
        return std::nullopt;
    try {
        return Formula(refusal.xmlrpcRetValue());
    } catch (const std::invalid_argument &) {
        return std::nullopt;
    }
}

/// Sends what \a send makes of the formula. With --force what the driver offers is sent in the place of what it refuses, and
/// becomes the formula. \throws RequestRefused
template <class Send>
void sendPourable(Formula &formula, const CommandLine &line, Send send)
{
    const XmlRpcAnswer refused = send(formula);
    if (refused.retCode() == 0)
        return;
    const std::optional<Formula> offered = line.isSet("force") ? offeredFormula(refused) : std::nullopt;
    if (!offered)
        throw RequestRefused(refused);
    for (const QString &reason : refused.getDriverErrorsStrings())
        printError(QStringLiteral("warning: ") + reason);
    formula = *offered;
    if (const XmlRpcAnswer again = send(formula); again.retCode() != 0)
        throw RequestRefused(again);
}

Ticket begin(const Driver &driver, Formula &formula, const CommandLine &line)
{
    QString ticket;
    sendPourable(formula, line, [&](const Formula &sent) {
        TintCmd command(sent, nullptr);
        const XmlRpcAnswer &envelope = startOnMachine(driver, command, line);
        if (envelope.retCode() == 0)
            ticket = ticketIn(command);
        return envelope;
    });
    return {driver, ticket, line};
}

/// What would be poured. Sends nothing but questions; the estimate is refused with what the pour would be refused with.
ExitStatus plan(const Driver &driver, PourOrder order, const CommandLine &line)
{
    const bool isEnough = tellLevels(driver, order.sent);
    long long time = 0;
    sendPourable(order.sent, line, [&](const Formula &sent) {
        TintCmd tint(sent, nullptr);
        GetCmdEstimatedExecTimeCmd command(&tint);
        const XmlRpcAnswer &envelope = driver.execute(command);
        if (const auto *answer =
                dynamic_cast<const GetCmdEstimatedExecTimeAnswer *>(command.getProtoAnswer()))
            time = answer->executionTime();
        return envelope;
    });
    PourPlan plan = pourPlan(driver, order);
    plan.time = time;
    plan.isEnough = isEnough;
    if (line.isSet("json")) {
        OrderedJson reply = success();
        reply["plan"] = planJson(plan);
        printJson(reply);
    } else {
        printPlan(plan);
    }
    return Done;
}

/// What the pour gave, unless the machine, which keeps but one report, has poured something else since.
std::optional<PourReport> reportOf(const Driver &driver, const PourOrder &order)
{
    std::optional<PourReport> report = pourReport(driver, order);
    if (!report)
        printError(QStringLiteral(
            "warning: the machine has poured something else since; its report of this pour is gone"));
    return report;
}

/// Some of it has left the nozzles. A driver that ended the pour by ending itself tells it no more.
void reportIfThere(const Driver &driver, const PourOrder &order)
{
    try {
        if (const std::optional<PourReport> report = reportOf(driver, order))
            printReport(*report);
    } catch (const TransportError &) {
        return; // why the pour was interrupted is told all the same
    }
}

bool isLacking(const std::optional<PourReport> &report)
{
    return report && !report->lacking().isEmpty();
}

OrderedJson outcomeOfPour(const std::optional<PourReport> &report, const XmlRpcAnswer &envelope)
{
    OrderedJson outcome = outcomeOf(envelope);
    return outcome["ok"].get<bool>() && isLacking(report) ? failureReply("poured less than asked") : outcome;
}

ExitStatus reportAsJson(const std::optional<PourReport> &report, const Ticket &ticket,
                        const XmlRpcAnswer &envelope)
{
    OrderedJson reply = outcomeOfPour(report, envelope);
    const bool isGood = reply["ok"].get<bool>();
    reply["ticket"] = toJson(ticket.id());
    if (report)
        reply["items"] = reportJson(*report);
    reply["envelope"] = envelopeJson(envelope);
    printJson(reply);
    return isGood ? Done : Refused;
}

ExitStatus waitAndReport(const Driver &driver, const Ticket &ticket, const PourOrder &order,
                         const CommandLine &line)
{
    const bool isJson = line.isSet("json");
    const CmdStatus ended = ticket.waitForEnd(intervalOf(line), !isJson && !line.isQuiet(),
                                              stoppedBySecond(driver, ticket.interruptPlan()));
    const bool isBroken = ended.status() == CmdStatus::Interrupted || ended.status() == CmdStatus::TimedOut;
    if (isBroken && !isJson)
        reportIfThere(driver, order);
    const XmlRpcAnswer envelope = resultOf(ended);
    const bool hasErrors = tellErrors(envelope);
    const std::optional<PourReport> report = reportOf(driver, order);
    if (isJson)
        return reportAsJson(report, ticket, envelope);
    if (!hasErrors && !line.isQuiet())
        printLine(envelope.infoMsg(), Colour::Bold);
    if (report)
        printReport(*report);
    return hasErrors || isLacking(report) ? Refused : Done;
}

ExitStatus runTint(const CommandLine &line)
{
    intervalOf(line); // refused before anything is asked
    std::optional<PourOrder> order = typedOrder(line);
    if (!order)
        return Refused;
    const bool isWaitedFor = !line.isSet("no-wait") && !line.isSet("dry-run");
    const Driver driver(line, isWaitedFor ? std::optional(SerialDeviceType::Dispenser) : std::nullopt);
    if (line.isSet("dry-run"))
        return plan(driver, *order, line);
    tellLevels(driver, order->sent);
    const Ticket ticket = begin(driver, order->sent, line);
    const bool isJson = line.isSet("json");
    if (!isJson)
        printLine(QStringLiteral("Ticket %1").arg(ticket.id()));
    if (isWaitedFor)
        return behindTicket(ticket.id(), [&] { return waitAndReport(driver, ticket, *order, line); });
    if (isJson)
        printJson({{"ok", true}, {"ticket", toJson(ticket.id())}});
    return Done;
}

} // namespace

const Subcommand tintSubcommand = {
    "tint",
    "FORMULA | ID=QUANTITY...",
    "pours a formula",
    "Pours on a driver's dispenser: a formula as JSON, or quantities of colorants by their codes. Warns of\n"
    "the canisters that would run low, waits until the machine has poured, shows how far it is, and reports\n"
    "what was poured of what was asked. A quantity of 0, and one that the machine misses by more than 1 %,\n"
    "such as half a stroke, is refused before anything is poured. Ctrl-C ends the waiting, not the pour,\n"
    "with exit status 130; a second one within 2 seconds stops the machine. The exit status is 1 also when\n"
    "less was poured than asked for.",
    1,
    -1,
    withDriverOptions(
        {{"by", "WHAT", "an ID is a position, circuit, canister or colorant (colorant)"},
         {"unit", "UNIT", "steps, strokes or weight: weight or volume, as calibrated (weight)"},
         {"levels-check", "on|off", "the driver refuses what canisters do not hold (on)"},
         {"force", nullptr, "pour the nearest amounts that the machine can, and leave out those of 0"},
         {"dry-run", nullptr, "show what would be poured, and pour nothing"},
         {"no-wait", nullptr, "do not wait for the end; the ticket tells later"},
         intervalOption,
         quietOption,
         {"json", nullptr, "ticket and amounts, or the plan, as one JSON object"}}),
    runTint,
    SerialDeviceType::Dispenser};

} // namespace quv
