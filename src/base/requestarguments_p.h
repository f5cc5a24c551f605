// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

/** The arguments of a request that begins with the command's name: all that stands behind it. */
inline XmlRpc::XmlRpcValue argumentsIn(const XmlRpc::XmlRpcValue &request)
{
    XmlRpc::XmlRpcValue arguments;
    arguments.setSize(request.size() > 0 ? request.size() - 1 : 0);
    for (int i = 1; i < request.size(); ++i)
        arguments[i - 1] = request[i];
    return arguments;
}

} // namespace quv
