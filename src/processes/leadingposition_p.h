// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/arguments_p.h"

// Two arguments that a position may stand before: a request with no more than the two is for position 0.

namespace quv {

/** That an argument is missing: the command's base counts them, and has the code. */
constexpr ArgumentRefusal countedBefore;

inline QList<QVariant> withPosition(QList<QVariant> list)
{
    if (list.size() == 2)
        list.prepend(0);
    return list;
}

/** \a value must be an array. */
inline XmlRpc::XmlRpcValue withPosition(const XmlRpc::XmlRpcValue &value)
{
    if (value.size() != 2)
        return value;
    XmlRpc::XmlRpcValue whole;
    whole.setSize(3);
    whole[0] = 0;
    whole[1] = value[0];
    whole[2] = value[1];
    return whole;
}

} // namespace quv
