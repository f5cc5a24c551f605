// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driver.h"
#include "excerpt.h"
#include "help.h"
#include "hints.h"
#include "language.h"
#include "machinechoice.h"
#include "operations.h"
#include "subcommands.h"
#include "suggestions.h"
#include "terminal.h"
#include "tickets.h"
#include "xmlrpcerrors.h"

#include <QuvFramework/fw_error.h>

#include <xmlrpcpp/XmlRpcException.h>

#include <QtCore/QLoggingCategory>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <exception>

namespace {

using namespace quv;

const std::vector<const Subcommand *> subcommands = {
    &listSubcommand,     &showSubcommand,    &encodeSubcommand,      &decodeSubcommand, &callSubcommand,
    &ticketSubcommand,   &tintSubcommand,    &configSubcommand,      &watchSubcommand,  &batchSubcommand,
    &machineSubcommand,  &explainSubcommand, &statusSubcommand,      &errorsSubcommand, &sensorsSubcommand,
    &circuitsSubcommand, &stirSubcommand,    &recirculateSubcommand, &cleanSubcommand,  &mixSubcommand,
    &moveSubcommand,     &refillSubcommand,  &stopSubcommand};

const Subcommand &subcommandOf(const QString &name)
{
    for (const Subcommand *subcommand : subcommands)
        if (name == QLatin1String(subcommand->name))
            return *subcommand;
    if (name.startsWith(QLatin1Char('-')))
        throw UsageError(QStringLiteral("there is no subcommand \"%1\"; options stand behind the subcommand")
                             .arg(excerpt(name)));
    QStringList names(QStringLiteral("help"));
    for (const Subcommand *subcommand : subcommands)
        names.append(QLatin1String(subcommand->name));
    throw UsageError(
        QStringLiteral("there is no subcommand \"%1\"%2").arg(excerpt(name), didYouMean(name, names)));
}

bool hasMachine(const Subcommand &subcommand)
{
    return std::any_of(subcommand.options.begin(), subcommand.options.end(),
                       [](const OptionText &option) { return std::strcmp(option.name, "on") == 0; });
}

ExitStatus help(const QStringList &words)
{
    if (words.size() > 1)
        throw UsageError(QStringLiteral("unexpected \"%1\"").arg(excerpt(words[1])));
    if (words.isEmpty())
        printOverview(subcommands);
    else
        printHelp(subcommandOf(words.first()));
    return Done;
}

ExitStatus run(QStringList words)
{
    if (words.isEmpty())
        throw UsageError(QStringLiteral("a subcommand is missing"));
    const QString name = words.takeFirst();
    if (name == QLatin1String("help") || name == QLatin1String("--help") || name == QLatin1String("-h"))
        return help(words);
    if (name == QLatin1String("--version") || name == QLatin1String("-V")) {
        printLine(QStringLiteral("quvctl " QUV_VERSION));
        return Done;
    }
    const Subcommand &subcommand = subcommandOf(name);
    const CommandLine line(subcommand, words);
    if (line.wantsHelp())
        return help({name});
    if (hasMachine(subcommand)) {
        setMachineOfHints(line.value("on", QString()));
        if (subcommand.kind)
            requireKind(line, *subcommand.kind, name);
    }
    return subcommand.run(line);
}

/// How a run has failed: for people, and for programs.
struct Failure
{
    QStringList lines;
    OrderedJson json;
    ExitStatus status = Refused;
};

Failure failureOf(const QString &text)
{
    return {{QStringLiteral("quvctl: ") + text}, failureReply(text.toStdString())};
}

Failure failureOf(const FailedBehindTicket &failed);

/// What the exception tells that is being handled.
Failure failureCaught()
{
    try {
        throw;
    } catch (const FailedBehindTicket &failed) {
        return failureOf(failed);
    } catch (const UsageError &error) {
        const QString text = QString::fromUtf8(error.what());
        return {{QStringLiteral("quvctl: %1 (see quvctl help)").arg(text)},
                failureReply(text.toStdString()),
                WrongUsage};
    } catch (const RequestRefused &refusal) {
        return {refusal.lines(), refusal.json()};
    } catch (const HttpRefusal &refusal) {
        Failure failure = failureOf(QString::fromUtf8(refusal.what()));
        if (refusal.status() == 401)
            failure.lines.append(QStringLiteral("hint: --token-file, or QUV_TOKEN_FILE, names the file with "
                                                "the token that the driver was given"));
        return failure;
    } catch (const FW_DriverError &error) {
        return {{error.toPrintableString()}, failureReply(error)};
    } catch (const FaultException &error) {
        const Fault &fault = error.fault();
        return {{QStringLiteral("%1: %2").arg(fault.code).arg(fault.text)},
                failureReply(FW_DriverError(QString::number(fault.code), fault.text))};
    } catch (const std::exception &error) {
        return failureOf(QString::fromUtf8(error.what()));
    } catch (const XmlRpc::XmlRpcException &error) {
        return failureOf(QString::fromStdString(error.getMessage()));
    }
}

Failure failureOf(const FailedBehindTicket &failed)
{
    try {
        std::rethrow_exception(failed.cause());
    } catch (...) {
        Failure failure = failureCaught();
        failure.json["ticket"] = toJson(failed.ticket());
        return failure;
    }
}

ExitStatus runReporting(const QStringList &words)
{
    try {
        return run(words);
    } catch (...) {
        const Failure failure = failureCaught();
        // the options themselves may be what is wrong
        if (words.contains(QStringLiteral("--json")))
            printJson(failure.json);
        for (const QString &line : failure.lines)
            printError(line);
        return failure.status;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    // when the reader has gone the program comes to its end all the same, since it may have to log out
    const auto atClosedOutput = std::signal(SIGPIPE, SIG_IGN);
    // QT_LOGGING_RULES shows them all the same
    QLoggingCategory::setFilterRules(QStringLiteral("quvprotocol.*.debug=false"));
    // UTF-8 whatever the locale: a service's environment often has none
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromUtf8(argv[i]));
    // programs that read a batch get the texts of their choice, not of the user who happens to start them
    const bool isForPrograms = words.value(0) == QLatin1String(batchSubcommand.name);
    const Language language(argc, argv, isForPrograms ? Language::QuvLang : Language::QuvLangOrLocale);
    const ExitStatus status = runReporting(words);
    const QString failure = outputFailure();
    if (failure.isEmpty())
        return status;
    if (isOutputClosed() && atClosedOutput == SIG_DFL) {
        std::signal(SIGPIPE, SIG_DFL);
        std::raise(SIGPIPE);
    }
    printError(QStringLiteral("quvctl: ") + failure);
    return status == Done ? Refused : status;
}
