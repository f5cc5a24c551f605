// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/machineinfotesting.h"
#include "status/dispenserstatus.h"
#include "status/mixerstatus.h"

// What the tests of the driver's records share: a status with a value of its own in each field, as an object and as a struct.

namespace testing_status {

using namespace testing_base;

/** Every second flag is true. */
inline DispenserStatus filledDispenserStatus()
{
    return {filledDispenserInfo(), true, false, true, false, true, false, true};
}

inline Value dispenserStatusStruct()
{
    return structOf({{"active", true},
                     {"conf_mng", false},
                     {"fw_update", true},
                     {"stats_mng", false},
                     {"slave_scan", true},
                     {"grav_sw_dose", false},
                     {"scale_mngm", true},
                     {"dispenser_info", dispenserInfoStruct()}});
}

inline std::string dispenserStatusDump()
{
    return std::string(R"({"active": true, "conf_mng": false, "dispenser_info": )") + dispenserInfoDump +
           R"(, "fw_update": true, "grav_sw_dose": false, "scale_mngm": true, "slave_scan": true, )"
           R"("stats_mng": false})";
}

inline MixerStatus filledMixerStatus()
{
    return {filledMixerInfo(), false, true, false, true};
}

inline Value mixerStatusStruct()
{
    return structOf({{"active", false},
                     {"conf_mng", true},
                     {"fw_update", false},
                     {"stats_mng", true},
                     {"mixer_info", mixerInfoStruct()}});
}

inline std::string mixerStatusDump()
{
    return std::string(R"({"active": false, "conf_mng": true, "fw_update": false, "mixer_info": )") +
           mixerInfoDump + R"(, "stats_mng": true})";
}

/** The status of a machine that is active, with nothing else under way. */
inline DispenserStatus activeDispenser()
{
    DispenserStatus status(filledDispenserInfo());
    status.active = true;
    return status;
}

template <class Status>
Status changed(Status status, bool MachineStatus::*flag)
{
    status.*flag = !(status.*flag);
    return status;
}

} // namespace testing_status
