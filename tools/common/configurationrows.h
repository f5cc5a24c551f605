// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_machine.h>

#include <vector>

namespace quv {

/// One row that a machine has.
struct ConfigurationInstance
{
    int code = 0; ///< of the structure
    int id = 1;   ///< the circuit or reference; 1 for a structure that exists once

    bool operator==(const ConfigurationInstance &other) const { return code == other.code && id == other.id; }
};

/**
 * The rows of all structures that the machine's kind supports, by code, then ID: of circuits one for each circuit, of ramps,
 * transmissions and flow corrections one for each reference that a dosing motor has.
 */
std::vector<ConfigurationInstance> configurationInstances(const FW_Machine &machine);

} // namespace quv
