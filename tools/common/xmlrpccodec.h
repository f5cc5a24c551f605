// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "xmlrpcerrors.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

#include <optional>

// XML-RPC documents to and from XmlRpc::XmlRpcValue, fit for what strangers send.
//
// Reading takes i4, int, boolean, double, string, untyped text, base64, dateTime.iso8601, array and struct, and nothing
// else. Numbers are taken whole and in range or refused, a struct has each member once, a document has no DTD and nothing
// after its end. A document is read by the encoding that it declares; one that declares none, or UTF-8, is read as
// Latin-1 when it is not valid UTF-8. Texts in values are UTF-8. A dateTime fills a struct tm as the C library means it
// (years since 1900, months from 0), without a time zone.
//
// Writing gives valid UTF-8 whatever bytes a value holds, and doubles that read back exactly. What XML cannot carry
// becomes U+FFFD, an empty value the integer 0.

namespace quv {

struct XmlRpcLimits
{
    int documentSize = 1024 * 1024; ///< bytes
    int nesting = 64;               ///< arrays and structs inside each other
    int values =
        40000; ///< arrays and structs counted as well; each takes many times the bytes that it stands in
};

/// Replies carry whole tables, so a client reads more than a server does.
inline constexpr XmlRpcLimits ReplyLimits{16 * 1024 * 1024, 64, 640000};

struct MethodCall
{
    QString method{};
    XmlRpc::XmlRpcValue params{}; ///< always an array
};

struct MethodResponse
{
    XmlRpc::XmlRpcValue value{}; ///< empty for a fault
    std::optional<Fault> fault{};
};

/// \throws CodecError
MethodCall parseMethodCall(const QByteArray &document, const XmlRpcLimits &limits = {});
/// \throws CodecError
MethodResponse parseMethodResponse(const QByteArray &document, const XmlRpcLimits &limits = ReplyLimits);

/// The array \a params gives the parameters; an empty value is no parameter, any other value the only one.
/// \throws CodecError for a double that is no finite number, and for a value nested too deeply for its reader
QByteArray writeMethodCall(const QString &method, const XmlRpc::XmlRpcValue &params);
/// \throws CodecError as writeMethodCall
QByteArray writeMethodResponse(const XmlRpc::XmlRpcValue &value);
QByteArray writeFault(const Fault &fault);

} // namespace quv
