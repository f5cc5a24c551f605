// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinechoice.h"

#include "commandline.h"
#include "excerpt.h"

#include <QtCore/QRegularExpression>

namespace quv {

MachineChoice machineChoice(const QString &text, const char *source)
{
    static const QRegularExpression form(QStringLiteral("\\A(dispenser|mixer)(?::([0-9]{1,9}))?\\z"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        throw UsageError(
            QStringLiteral("%1: a machine is called dispenser, mixer, or by its number too: dispenser:2; "
                           "not \"%2\"")
                .arg(QLatin1String(source), excerpt(text)));
    MachineChoice choice;
    choice.type =
        match.captured(1) == QLatin1String("mixer") ? SerialDeviceType::Mixer : SerialDeviceType::Dispenser;
    if (match.capturedStart(2) >= 0)
        choice.id = match.captured(2).toInt();
    return choice;
}

std::optional<MachineChoice> chosenMachine(const CommandLine &line)
{
    constexpr const char *variable = "QUV_ON";
    if (line.isSet("on"))
        return machineChoice(line.value("on", QString()), "--on");
    if (!qEnvironmentVariableIsEmpty(variable))
        return machineChoice(qEnvironmentVariable(variable), variable);
    return std::nullopt;
}

} // namespace quv
