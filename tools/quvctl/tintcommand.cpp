// SPDX-License-Identifier: LGPL-3.0-or-later
#include "formulawords.h"
#include "operations.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"
#include "tickets.h"

#include "base/xmlrpcanswer.h"
#include "dispensing/checkformulalevelsanswer.h"
#include "dispensing/checkformulalevelscmd.h"
#include "dispensing/getdispensedformulaanswer.h"
#include "dispensing/getdispensedformulacmd.h"
#include "dispensing/tintcmd.h"

#include <QuvFramework/formula.h>

namespace quv {

namespace {

/// The answer of a command that was carried out. \throws RequestRefused, std::runtime_error for an answer of another class
template <class Answer>
const Answer &executed(const Driver &driver, ProtoCommand &command)
{
    const XmlRpcAnswer &envelope = driver.execute(command);
    if (envelope.retCode() != 0)
        throw RequestRefused(envelope);
    const auto *answer = dynamic_cast<const Answer *>(command.getProtoAnswer());
    if (!answer)
        throw std::runtime_error("the answer to " + command.command().toStdString() + " is another one");
    return *answer;
}

void warn(int canister, const char *level)
{
    printError(QStringLiteral("warning: canister %1 would fall below its %2 level")
                   .arg(canister)
                   .arg(QLatin1String(level)));
}

void tellLevels(const Driver &driver, const Formula &formula)
{
    CheckFormulaLevelsCmd command(formula, false);
    const auto &answer = executed<CheckFormulaLevelsAnswer>(driver, command);
    const QList<int> critical = answer.canistersBelowCritical();
    for (const int canister : critical)
        warn(canister, "critical");
    for (const int canister : answer.canistersBelowWarning())
        if (!critical.contains(canister))
            warn(canister, "warning");
}

Ticket begin(const Driver &driver, const Formula &formula, const CommandLine &line)
{
    const OnInterrupt onInterrupt(
        QStringLiteral("the machine may have begun to pour; look at it with: quvctl call GET_STATUS"));
    TintCmd command(formula, nullptr);
    const XmlRpcAnswer &envelope = driver.start(command);
    if (envelope.retCode() != 0)
        throw RequestRefused(envelope);
    return {driver, ticketIn(command), line};
}

double quantityOf(const Formula &formula, const QString &id)
{
    double quantity = 0;
    for (const FormulaItem &item : formula.items())
        if (item.id == id)
            quantity += item.quantity;
    return quantity;
}

QString stepsInWords(double steps)
{
    return QString::number(steps, 'f', 0);
}

QString lastLine(const QStringList &lacking)
{
    if (lacking.isEmpty())
        return QStringLiteral("poured: all");
    return QStringLiteral("poured less than asked on %1 %2")
        .arg(lacking.size() == 1 ? QStringLiteral("circuit") : QStringLiteral("circuits"),
             lacking.join(QStringLiteral(", ")));
}

GetDispensedFormulaAnswer pouredFormula(const Driver &driver)
{
    GetDispensedFormulaCmd command(Formula::CircuitPositions, Formula::Steps);
    return executed<GetDispensedFormulaAnswer>(driver, command);
}

void printJson(const OrderedJson &json)
{
    printLine(QString::fromStdString(writeJson(json)));
}

/// The same as report(), as one JSON object.
ExitStatus reportAsJson(const Driver &driver, const Ticket &ticket)
{
    const GetDispensedFormulaAnswer answer = pouredFormula(driver);
    OrderedJson rows = OrderedJson::array();
    bool lacks = false;
    for (const FormulaItem &asked : answer.totalFormula().items()) {
        const double poured = quantityOf(answer.dispensedFormula(), asked.id);
        rows.push_back(OrderedJson::object(
            {{"position", toJson(asked.id)}, {"poured_steps", poured}, {"asked_steps", asked.quantity}}));
        lacks = lacks || poured < asked.quantity;
    }
    OrderedJson reply = lacks ? failureReply("poured less than asked") : success();
    reply["ticket"] = toJson(ticket.id());
    reply["circuits"] = std::move(rows);
    printJson(reply);
    return lacks ? Refused : Done;
}

/// What left each circuit; Refused when it is less than was asked for.
ExitStatus report(const Driver &driver)
{
    const GetDispensedFormulaAnswer answer = pouredFormula(driver);
    Columns columns;
    columns.add({QStringLiteral("POSITION"), QStringLiteral("POURED STEPS"), QStringLiteral("ASKED STEPS")});
    QStringList lacking;
    for (const FormulaItem &asked : answer.totalFormula().items()) {
        const double poured = quantityOf(answer.dispensedFormula(), asked.id);
        columns.add({asked.id, stepsInWords(poured), stepsInWords(asked.quantity)});
        if (poured < asked.quantity)
            lacking.append(asked.id);
    }
    columns.print(true);
    printLine(lastLine(lacking), lacking.isEmpty() ? Colour::Bold : Colour::Red);
    return lacking.isEmpty() ? Done : Refused;
}

ExitStatus run(const CommandLine &line)
{
    const Driver driver(line);
    const std::chrono::milliseconds interval = intervalOf(line);
    const Formula formula = formulaOf(line);
    tellLevels(driver, formula);
    const Ticket ticket = begin(driver, formula, line);
    const bool isJson = line.isSet("json");
    const bool isDone = line.isSet("no-wait");
    if (!isJson)
        printLine(QStringLiteral("Ticket %1").arg(ticket.id()));
    else if (isDone)
        printJson({{"ok", true}, {"ticket", toJson(ticket.id())}});
    if (isDone)
        return Done;
    const CmdStatus ended = ticket.waitForEnd(interval, !isJson && !line.isQuiet());
    const bool isBroken = ended.status() == CmdStatus::Interrupted || ended.status() == CmdStatus::TimedOut;
    if (isBroken && !isJson)
        report(driver); // some of it has left the nozzles
    const XmlRpcAnswer result = resultOf(ended);
    if (isJson)
        return reportAsJson(driver, ticket);
    if (!line.isQuiet())
        printLine(result.infoMsg(), Colour::Bold);
    return report(driver);
}

} // namespace

const Subcommand tintSubcommand = {
    "tint",
    "FORMULA | ID=QUANTITY...",
    "pours a formula",
    "Pours on a driver's dispenser: a formula as JSON, or quantities of colorants by their codes. Warns of "
    "the\n"
    "canisters that would run low, waits until the machine has poured, shows how far it is, and reports "
    "what\n"
    "left each circuit. Ctrl-C ends the waiting, not the pour, with exit status 130. The exit status is 1\n"
    "also when less was poured than asked for.",
    1,
    -1,
    withDriverOptions({{"by", "WHAT", "an ID is a position, circuit, canister or colorant (colorant)"},
                       {"unit", "UNIT", "steps, strokes or weight: weight or volume, as calibrated (weight)"},
                       {"levels-check", "on|off", "the driver refuses what canisters do not hold (on)"},
                       {"no-wait", nullptr, "do not wait for the end; the ticket tells later"},
                       intervalOption,
                       quietOption,
                       {"json", nullptr, "ticket and circuits as one JSON object"}}),
    run};

} // namespace quv
