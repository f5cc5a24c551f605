// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandfacts.h"

#include <vector>

namespace testing_processes {

/** Which firmware drives a capping station: at the limit, below and above, and others. */
inline std::vector<testing_base::Gate> cappingStations()
{
    return {{FW_Version(63, 39), true},  {FW_Version(63, 99), true},  {FW_Version(63, 38), false},
            {FW_Version(63, 0), false},  {FW_Version(62, 39), false}, {FW_Version(64, 39), false},
            {FW_Version(70, 99), false}, {FW_Version(72, 99), false}, {FW_Version(), false}};
}

} // namespace testing_processes
