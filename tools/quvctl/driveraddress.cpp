// SPDX-License-Identifier: LGPL-3.0-or-later
#include "driveraddress.h"

#include "commandline.h"
#include "excerpt.h"
#include "terminal.h"

#include <QtCore/QRegularExpression>

#include <optional>

namespace quv {

namespace {

struct ToldHost
{
    QString host{};
    std::optional<int> port{};
    QString path{};
};

/// \a source is what gave the text, as the user knows it.
int portOf(const QString &text, const char *source)
{
    bool ok = false;
    const int port = text.toInt(&ok);
    if (!ok || port < 1 || port > 65535)
        throw UsageError(QStringLiteral("%1: a port is a number from 1 to 65535, not \"%2\"")
                             .arg(QLatin1String(source), excerpt(text)));
    return port;
}

UsageError noAddress(const QString &text, const char *source, const char *why)
{
    return UsageError(
        QStringLiteral("%1: \"%2\" %3").arg(QLatin1String(source), excerpt(text), QLatin1String(why)));
}

ToldHost hostOf(const QString &text, const char *source)
{
    static const QRegularExpression schemeForm(QStringLiteral("^([A-Za-z][A-Za-z0-9+.-]*)://"));
    static const QRegularExpression form(
        QStringLiteral(R"(^(\[[^\]/\s]+\]|[^:/\[\]\s]+)(?::([^:/]*))?(/.*)?$)"));
    static const QRegularExpression numberOfSixthVersion(
        QStringLiteral("^[0-9A-Fa-f.]*(:[0-9A-Fa-f.]*){2,}(%.+)?$"));
    if (numberOfSixthVersion.match(text).hasMatch())
        return {text, std::nullopt, QString()};
    const QRegularExpressionMatch begin = schemeForm.match(text);
    const QString scheme = begin.captured(1).toLower();
    const QString rest = text.mid(begin.capturedLength());
    const QRegularExpressionMatch match = form.match(rest);
    if (scheme == QLatin1String("https"))
        throw noAddress(text, source,
                        "is no address that quvctl can call: it speaks http, without encryption");
    const bool isHttp = scheme.isEmpty() || scheme == QLatin1String("http");
    if (isHttp && rest.section(QLatin1Char('/'), 0, 0).contains(QLatin1Char('@')))
        throw noAddress(text, source, "tells a user, which nobody would see");
    if (!isHttp || !match.hasMatch())
        throw noAddress(text, source, "is no HOST, HOST:PORT or http://HOST:PORT/PATH");
    if (scheme.isEmpty() && !match.captured(3).isEmpty())
        throw noAddress(text, source, "has a path, so it begins with http://");
    ToldHost told{match.captured(1), std::nullopt, match.captured(3)};
    if (told.host.startsWith(QLatin1Char('[')))
        told.host = told.host.mid(1, told.host.size() - 2);
    if (match.capturedStart(2) >= 0)
        told.port = portOf(match.captured(2), source);
    return told;
}

} // namespace

DriverAddress driverAddress(const CommandLine &line)
{
    constexpr const char *hostVariable = "QUV_HOST";
    constexpr const char *portVariable = "QUV_PORT";
    const bool isTyped = line.isSet("host");
    ToldHost told{QStringLiteral("127.0.0.1")};
    if (isTyped)
        told = hostOf(line.value("host", QString()), "--host");
    else if (!qEnvironmentVariableIsEmpty(hostVariable))
        told = hostOf(qEnvironmentVariable(hostVariable), hostVariable);

    DriverAddress address;
    address.host = told.host;
    address.path = told.path;
    if (line.isSet("port")) {
        address.port = line.number("port", address.port, 1, 65535);
        if (isTyped && told.port && *told.port != address.port)
            throw UsageError(
                QStringLiteral("--host tells the port %1, --port %2").arg(*told.port).arg(address.port));
    } else if (told.port) {
        address.port = *told.port;
    } else if (!qEnvironmentVariableIsEmpty(portVariable)) {
        address.port = portOf(qEnvironmentVariable(portVariable), portVariable);
    }
    return address;
}

QString sameDriver(const CommandLine &line)
{
    return sameDriver(line, std::nullopt);
}

QString sameDriver(const CommandLine &line, const std::optional<MachineChoice> &machine)
{
    QString words;
    const auto add = [&words](const char *option, const QString &value) {
        words += QStringLiteral(" --%1 %2").arg(QLatin1String(option), shellWord(value));
    };
    for (const char *option : {"host", "port", "on", "token-file"})
        if (machine && QLatin1String(option) == QLatin1String("on"))
            add(option, inWords(*machine));
        else if (line.isSet(option))
            add(option, line.value(option, QString()));
    return words;
}

} // namespace quv
