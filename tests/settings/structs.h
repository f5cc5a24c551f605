// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

namespace testing_settings {

/** The struct without one of its members. */
inline testing_base::Value without(const testing_base::Value &value, const std::string &key)
{
    testing_base::Value rest;
    for (const auto &[name, member] : value) {
        if (name != key)
            rest[name] = member;
    }
    return rest;
}

} // namespace testing_settings
