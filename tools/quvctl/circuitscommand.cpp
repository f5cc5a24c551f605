// SPDX-License-Identifier: LGPL-3.0-or-later
#include "canisters.h"
#include "executed.h"
#include "replies.h"
#include "subcommands.h"
#include "terminal.h"
#include "words.h"

#include "status/circuitsstatusanswer.h"
#include "status/dispenserstatusanswer.h"
#include "status/getactivecircuitsanswer.h"
#include "status/getactivecircuitscmd.h"

namespace quv {

namespace {

/// The colorant of each circuit's position, as far as the driver tells it.
QString colorantAt(int position, const QList<CanisterData> &canisters)
{
    for (const CanisterData &canister : canisters)
        if (canister.positionIDs.contains(position))
            return canister.colorantCode;
    return {};
}

QStringList workOf(const DispenserStatusAnswer &status)
{
    struct Work
    {
        bool DispenserStatusAnswer::*flag;
        const char *text;
    };
    using Status = DispenserStatusAnswer;
    static constexpr Work works[] = {{&Status::tinting, "pours"},
                                     {&Status::recirculating, "recirculates"},
                                     {&Status::stirring, "stirs"},
                                     {&Status::cleaning, "is cleaned"},
                                     {&Status::resetting, "is reset"}};
    QStringList texts;
    for (const Work &work : works)
        if (status.*work.flag)
            texts.append(QLatin1String(work.text));
    for (const StatusLine &condition : statusInWords(status))
        if (condition.bad)
            texts.append(condition.text);
    return texts;
}

ExitStatus showAll(const Driver &driver, bool asJson)
{
    const auto all = answerTo<CircuitsStatusAnswer>(ProtoCommandList::GET_CIRCUITS_STATUS, driver);
    const QList<CanisterData> canisters = canistersOf(driver).value_or(QList<CanisterData>());
    OrderedJson list = OrderedJson::array();
    Columns columns;
    columns.add({QStringLiteral("CIRCUIT"), QStringLiteral("COLORANT"), QStringLiteral("DOES")});
    for (const auto &[position, status] : all.answers().answers()) {
        const QString colorant = colorantAt(position, canisters);
        const QStringList work = workOf(status);
        columns.add({QString::number(position), colorant,
                     work.isEmpty() ? QStringLiteral("nothing") : work.join(QStringLiteral(", "))});
        OrderedJson does = OrderedJson::array();
        for (const QString &text : work)
            does.push_back(toJson(text));
        list.push_back({{"position", position}, {"colorant", toJson(colorant)}, {"does", std::move(does)}});
    }
    if (!asJson) {
        columns.print(true);
        return Done;
    }
    OrderedJson reply = success();
    reply["circuits"] = std::move(list);
    printJson(reply);
    return Done;
}

ExitStatus showEngaged(const Driver &driver, int process, bool asJson)
{
    GetActiveCircuitsCmd command{static_cast<CircuitProcess>(process)};
    const auto &engaged = executed<GetActiveCircuitsAnswer>(driver, command);
    if (asJson) {
        OrderedJson reply = success();
        reply["process"] = process;
        reply["positions"] = numbers(engaged.positionsID());
        printJson(reply);
        return Done;
    }
    QStringList positions;
    for (const int position : engaged.positionsID())
        positions.append(QString::number(position));
    printLine(positions.isEmpty()
                  ? QStringLiteral("no circuit is engaged")
                  : QStringLiteral("circuits engaged: ") + positions.join(QStringLiteral(", ")));
    return Done;
}

ExitStatus runCircuits(const CommandLine &line)
{
    const Driver driver(line);
    const bool asJson = line.isSet("json");
    if (!line.isSet("process"))
        return showAll(driver, asJson);
    return showEngaged(driver,
                       line.number("process", static_cast<int>(CircuitProcess::First),
                                   static_cast<int>(CircuitProcess::First),
                                   static_cast<int>(CircuitProcess::Last)),
                       asJson);
}

} // namespace

const Subcommand circuitsSubcommand = {
    "circuits",
    "",
    "what each circuit of a dispenser does",
    "Shows the enabled circuits, a line each: position, colorant, and what the circuit does. With --process\n"
    "it shows only which circuits are engaged in one process of the firmware, by its number.",
    0,
    0,
    withDriverOptions({{"process", "NUMBER", "1 to 13, as the firmware numbers its processes"},
                       {"json", nullptr, "the circuits as one JSON object"}}),
    runCircuits,
    SerialDeviceType::Dispenser};

} // namespace quv
