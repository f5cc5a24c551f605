// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

/** The arguments of a request: all elements after the name. */
inline XmlRpc::XmlRpcValue argumentsOf(const XmlRpc::XmlRpcValue &request)
{
    XmlRpc::XmlRpcValue arguments;
    arguments.setSize(0);
    for (int i = 1; i < request.size(); ++i)
        arguments[i - 1] = request[i];
    return arguments;
}

} // namespace quv
