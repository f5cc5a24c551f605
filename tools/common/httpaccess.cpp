// SPDX-License-Identifier: LGPL-3.0-or-later
#include "httpaccess.h"

#include "savedfile.h"

#include <QtCore/QByteArray>

#include <algorithm>
#include <stdexcept>

#include <arpa/inet.h>
#include <strings.h>

namespace quv {
namespace {

constexpr int MinToken = 16;
constexpr int MaxToken = 512;

bool equal(std::string_view a, std::string_view b)
{
    return a.size() == b.size() && ::strncasecmp(a.data(), b.data(), a.size()) == 0;
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// What may stand behind a host: nothing, or a port.
bool isPort(std::string_view rest)
{
    return rest.empty() || (rest.front() == ':' && rest.find_first_not_of("0123456789", 1) == rest.npos);
}

/// Empty for what is no host with or without a port.
std::string_view withoutPort(std::string_view host)
{
    const bool isBracketed = !host.empty() && host.front() == '[';
    const auto end = isBracketed ? host.find(']') : std::min(host.find(':'), host.size());
    if (!isBracketed && host.find(':') != host.rfind(':'))
        return host; // a number of version 6 as it is
    if (end == host.npos || !isPort(host.substr(isBracketed ? end + 1 : end)))
        return {};
    return isBracketed ? host.substr(1, end - 1) : host.substr(0, end);
}

bool isLoopback(const std::string &address)
{
    in_addr four{};
    in6_addr six{};
    if (::inet_pton(AF_INET, address.c_str(), &four) == 1)
        return (ntohl(four.s_addr) >> 24U) == 127;
    return ::inet_pton(AF_INET6, address.c_str(), &six) == 1 && IN6_IS_ADDR_LOOPBACK(&six);
}

/// Takes as long for any \a given of a length.
bool isToken(std::string_view given, std::string_view token)
{
    std::size_t difference = given.size() ^ token.size();
    for (std::size_t i = 0; i < given.size() && !token.empty(); ++i)
        difference |=
            static_cast<unsigned char>(given[i]) ^ static_cast<unsigned char>(token[i % token.size()]);
    return difference == 0 && !token.empty();
}

bool isVisible(char character)
{
    return character > ' ' && character < '\x7F';
}

} // namespace

bool namesThisComputer(std::string_view host, std::string_view own)
{
    const std::string_view name = withoutPort(trimmed(host));
    if (name.empty())
        return false;
    return equal(name, "localhost") || isLoopback(std::string(name)) || equal(name, own);
}

bool isXmlType(std::string_view contentType)
{
    const std::string_view type = trimmed(contentType.substr(0, contentType.find(';')));
    return equal(type, "text/xml") || equal(type, "application/xml");
}

bool holdsToken(std::string_view authorization, std::string_view token)
{
    const auto end = std::min(authorization.find(' '), authorization.size());
    const std::string_view scheme = authorization.substr(0, end);
    const std::string_view given = trimmed(authorization.substr(end));
    if (equal(scheme, "Bearer"))
        return isToken(given, token);
    if (!equal(scheme, "Basic"))
        return false;
    const std::string pair =
        QByteArray::fromBase64(QByteArray::fromRawData(given.data(), static_cast<int>(given.size())))
            .toStdString();
    const auto colon = pair.find(':');
    return colon != std::string::npos && isToken(std::string_view(pair).substr(colon + 1), token);
}

std::string readToken(const QString &path)
{
    const auto fail = [&path](const QString &reason) -> std::runtime_error {
        return std::runtime_error(QStringLiteral("Token file \"%1\": %2").arg(path, reason).toStdString());
    };
    std::string token;
    try {
        token = loadFile(path, MaxToken + 3).trimmed().toStdString();
    } catch (const FileError &error) {
        throw fail(QString::fromUtf8(error.what()));
    }
    if (token.size() < MinToken || token.size() > MaxToken ||
        !std::all_of(token.begin(), token.end(), isVisible))
        throw fail(QStringLiteral("it must hold one line of %1 to %2 characters, without blanks")
                       .arg(MinToken)
                       .arg(MaxToken));
    return token;
}

} // namespace quv
