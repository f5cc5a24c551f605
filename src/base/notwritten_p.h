// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

/** What xmlrpc_parameters gives of a command that does not know yet what it is to do: an empty array, and \a ok false. */
inline XmlRpc::XmlRpcValue notWritten(bool *ok)
{
    if (ok)
        *ok = false;
    XmlRpc::XmlRpcValue none;
    none.setSize(0);
    return none;
}

} // namespace quv
