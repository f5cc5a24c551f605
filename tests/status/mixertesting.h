// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "status/mixerstatusanswer.h"
#include "status/statustesting.h"

// What the tests of the mixer's status share: its flags by name, a whole answer in both forms.

namespace testing_status {

/** In the order in which they are declared. */
inline const std::vector<Flag<MixerStatusAnswer>> mixerFlags = {
    {"repositioning", &MixerStatusAnswer::repositioning},
    {"clamping", &MixerStatusAnswer::clamping},
    {"mixing", &MixerStatusAnswer::mixing},
    {"cycle_active", &MixerStatusAnswer::cycle_active},
    {"plates_part_opened", &MixerStatusAnswer::plates_part_opened},
    {"not_locked_ver", &MixerStatusAnswer::not_locked_ver},
    {"ready_next_cycle", &MixerStatusAnswer::ready_next_cycle},
    {"cycle_on_hold", &MixerStatusAnswer::cycle_on_hold},
    {"intput_power_abs", &MixerStatusAnswer::intput_power_abs},
    {"lower_plate_extracted", &MixerStatusAnswer::lower_plate_extracted},
    {"door_partially_opened", &MixerStatusAnswer::door_partially_opened},
    {"can_in_plates", &MixerStatusAnswer::can_in_plates},
    {"door_opening", &MixerStatusAnswer::door_opening},
    {"door_closing", &MixerStatusAnswer::door_closing},
    {"door_reset", &MixerStatusAnswer::door_reset},
    {"cycle_interrupted", &MixerStatusAnswer::cycle_interrupted},
    {"door_locked", &MixerStatusAnswer::door_locked},
    {"config_changed", &MixerStatusAnswer::config_changed},
    {"need_repositioning", &MixerStatusAnswer::need_repositioning},
    {"door_unlocked", &MixerStatusAnswer::door_unlocked},
};

/** A struct with a member for each field: status 1, all flags but normal_wm false, all numbers 0. */
inline Value idleMixerStruct()
{
    Value value;
    value["disp_status"] = 1;
    for (const auto &flag : machineFlags)
        value[flag.name] = false;
    for (const auto &flag : mixerFlags)
        value[flag.name] = false;
    value["normal_wm"] = true;
    for (const char *number : {"cycle_id", "timeleft", "mixing_speed", "clamping_force", "clamping_height"})
        value[number] = 0;
    return value;
}

/** Tokens of an idle mixer, up to the high digit of the clamping height. */
inline QStringList idleMixerTokens()
{
    return {"F", "0", "1", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0", "0"};
}

} // namespace testing_status
