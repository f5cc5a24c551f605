// SPDX-License-Identifier: LGPL-3.0-or-later
#include "machinechoice.h"

#include "commandline.h"
#include "excerpt.h"

#include <QtCore/QRegularExpression>

namespace quv {

namespace {

constexpr char option[] = "--on";
constexpr char variable[] = "QUV_ON";

QString wordOf(SerialDeviceType kind)
{
    return kind == SerialDeviceType::Mixer ? QStringLiteral("mixer") : QStringLiteral("dispenser");
}

} // namespace

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

QString inWords(const MachineChoice &choice)
{
    const QString kind = wordOf(choice.type);
    return choice.id ? kind + QLatin1Char(':') + QString::number(*choice.id) : kind;
}

std::optional<MachineChoice> chosenMachine(const CommandLine &line)
{
    if (line.isSet("on"))
        return machineChoice(line.value("on", QString()), option);
    if (!qEnvironmentVariableIsEmpty(variable))
        return machineChoice(qEnvironmentVariable(variable), variable);
    return std::nullopt;
}

void requireKind(const CommandLine &line, SerialDeviceType kind, const QString &what)
{
    const std::optional<MachineChoice> chosen = chosenMachine(line);
    if (chosen && chosen->type != kind)
        throw UsageError(QStringLiteral("%1 is for a %2; %3 names a %4")
                             .arg(what, wordOf(kind), QLatin1String(line.isSet("on") ? option : variable),
                                  wordOf(chosen->type)));
}

} // namespace quv
