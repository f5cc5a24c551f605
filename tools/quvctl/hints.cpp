// SPDX-License-Identifier: LGPL-3.0-or-later
#include "hints.h"

#include "terminal.h"

#include "base/xmlrpcanswer.h"

#include <algorithm>
#include <iterator>

namespace quv {

namespace {

struct Hint
{
    const char *code;
    const char *text;     ///< %1 stands behind a command that is to go to the same machine
    const char *end = ""; ///< of the refusals that it is for
};

constexpr char lowLevels[] =
    "fill the canister and tell the driver by quvctl refill%1, or pour what there is "
    "with quvctl tint%1 --levels-check off";
constexpr char otherAmounts[] = "quvctl tint --force pours the nearest amounts, and leaves out those of 0";

constexpr char formulaNeedsMachine[] =
    "--machine tells for which machine the formula is, as in --machine dispenser";

constexpr Hint hints[] = {
    {"DE00060", lowLevels},
    {"DE00061", lowLevels},
    {"DE00334", formulaNeedsMachine},
    {"DE01429", "--machine tells for which machine the formula is, as in --machine dual"},
    {"DE01662", formulaNeedsMachine},
    {"DE03104", "the driver was started without a machine of this kind; quvdriver --machine names them"},
    {"DE03111", "the machine may have poured all the same; what it poured last is told by "
                "quvctl call GET_DISPENSED_FORMULA 1 1%1"},
    {"DE03112", "quvctl status%1 tells when it has ended"},
    {"DE03106", "quvctl status%1 tells what the machine is at",
     "and 0x8)"}, // it is not available, without a reason
    {"DE03140", otherAmounts},
    {"DE03141", otherAmounts},
    {"DE03142", "the canister is empty, or holds less than the driver believes; quvctl refill%1 tells it "
                "what was filled in"},
    {"DE03402", "--on, or QUV_ON, names the machine, such as mixer or dispenser:2"},
};

QString optionOfMachine;

} // namespace

void setMachineOfHints(const QString &machine)
{
    optionOfMachine = machine.isEmpty() ? QString() : QStringLiteral(" --on ") + shellWord(machine);
}

QString hintFor(const QString &error)
{
    const QString code = error.section(QLatin1Char(':'), 0, 0);
    const auto hint = std::find_if(std::begin(hints), std::end(hints), [&](const Hint &candidate) {
        return code == QLatin1String(candidate.code) && error.endsWith(QLatin1String(candidate.end));
    });
    return hint == std::end(hints)
               ? QString()
               : QString::fromLatin1(hint->text).replace(QLatin1String("%1"), optionOfMachine);
}

QStringList errorLines(const XmlRpcAnswer &envelope)
{
    QStringList lines;
    const QStringList errors = envelope.toPrintableString().mid(1); // behind the formality
    const bool isStoppedPour = errors.value(0).startsWith(QLatin1String("DE03411:"));
    for (int i = 0; i < errors.size(); ++i) {
        const auto hintOf = [&](int index) {
            // what a stopped pour lacks is no sign of an empty canister
            return isStoppedPour ? QString() : hintFor(errors.value(index));
        };
        lines.append(errors[i]);
        if (const QString hint = hintOf(i); !hint.isEmpty() && hint != hintOf(i + 1))
            lines.append(QStringLiteral("hint: ") + hint);
    }
    return lines;
}

bool tellErrors(const XmlRpcAnswer &envelope)
{
    const QStringList lines = errorLines(envelope);
    for (const QString &line : lines)
        printError(line);
    return !lines.isEmpty();
}

} // namespace quv
