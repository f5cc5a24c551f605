// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

#include <QuvFramework/fw_configuration.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_mixer.h>

#include <memory>
#include <string>

// The machines that the tests of this folder save and ask for.

namespace testing_setup {

using testing_base::arrayOf;
using testing_base::dumped;
using testing_base::structOf;
using testing_base::Value;

inline FW_Mixer mixer()
{
    FW_Mixer mixer;
    mixer.setId(7);
    mixer.setModel(MachineModel::GenericMixer);
    mixer.setDescription(QStringLiteral("back room"));
    return mixer;
}

inline Value mixerStruct()
{
    return structOf({{"type", "mixer"}, {"id", 7}, {"machine_model", 100}, {"description", "back room"}});
}

constexpr char mixerDump[] =
    R"({"conf_structure_name": "", "connection_name": "", "description": "back room", )"
    R"("id": 7, "machine_model": 100, "model_name": "", "product_code": "", )"
    R"("serial_number": "", "sid": "", "type": "mixer"})";

inline FW_Dispenser dispenser()
{
    FW_Dispenser dispenser;
    dispenser.setId(3);
    dispenser.setModel(MachineModel::Rotan);
    dispenser.setTintingParallelism(2);
    return dispenser;
}

inline Value dispenserStruct()
{
    return structOf({{"type", "dispenser"}, {"id", 3}, {"machine_model", 6}, {"tinting_parallelism", 2}});
}

/** The dispenser with all of its members, which are told where they are made. */
inline std::string dispenserDump()
{
    return dumped(dispenser().toXmlRpcValue());
}

inline FW_Configuration configuration()
{
    FW_Configuration configuration;
    configuration.setMachine(std::make_unique<FW_Mixer>(mixer()));
    configuration.setActiveMachine(SerialDeviceType::Mixer, 7);
    return configuration;
}

inline Value configurationStruct()
{
    return structOf({{"machines", arrayOf(mixerStruct())}, {"active_mixer", 7}});
}

inline std::string configurationDump()
{
    return std::string(R"({"active_mixer": 7, "machines": [)") + mixerDump + "]}";
}

} // namespace testing_setup
