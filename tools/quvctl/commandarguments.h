// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

namespace quv {

/// A few commands take a struct in place of the array, so whatever value there is goes to the command.
inline XmlRpc::XmlRpcValue argumentsOf(const Request &request)
{
    if (request.has("args"))
        return request.value("args");
    XmlRpc::XmlRpcValue none;
    none.setSize(0);
    return none;
}

/// What \a make makes of the arguments of the request, in the form that it tells. \throws BadRequest
template <class Make>
auto withArguments(const Request &request, Make make)
{
    const QString form = request.text("form", QStringLiteral("value"));
    if (form == QLatin1String("value")) {
        XmlRpc::XmlRpcValue arguments = argumentsOf(request);
        return make(arguments);
    }
    if (form == QLatin1String("list")) {
        QList<QVariant> arguments = request.variants("args");
        return make(arguments);
    }
    throw BadRequest("\"form\" must be \"value\" or \"list\"");
}

} // namespace quv
