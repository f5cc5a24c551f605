// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <string>
#include <string_view>

// Who may call a driver, told by the values of HTTP headers.

namespace quv {

/// Whether the value of Host names this computer, as localhost or by a loopback address, or is \a own; ports do not matter.
bool namesThisComputer(std::string_view host, std::string_view own);

/// Whether the value of Content-Type is that of XML, whatever its parameters are.
bool isXmlType(std::string_view contentType);

/// Whether the value of Authorization holds \a token: as bearer, or as the password of any user. What it takes to find out
/// tells nothing of the token but its length.
bool holdsToken(std::string_view authorization, std::string_view token);

/// The token in the file \a path: its only line, of 16 to 512 visible ASCII characters.
/// \throws std::runtime_error, with a text for the user, when there is none
std::string readToken(const QString &path);

} // namespace quv
