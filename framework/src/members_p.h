// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

// What a class has of the description of its members (QuvFramework/fw_members.h).

/** The object as a struct with all members; a part that it does without is left out. */
template <class T>
XmlRpc::XmlRpcValue writtenMembers(const T &object);

/**
 * Gives a new \a object the members of the struct; those that are missing leave it alone, and those that it does not know are passed over.
 * Throws FW_Exception DE03350 that names the member that is wrong; \a object is then partly read and must not live on.
 */
template <class T>
void readMembers(const XmlRpc::XmlRpcValue &value, T &object, const char *function);

/** True when all members are equal. */
template <class T>
bool haveSameMembers(const T &left, const T &right);

} // namespace quv
