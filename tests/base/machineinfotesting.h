// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"
#include "base/dispenserinfo.h"
#include "base/mixerinfo.h"

#include <functional>
#include <string>
#include <vector>

// Infos of machines with a value of its own in each field, as objects, as structs and dumped.

namespace testing_base {

inline MachineInfo filledMachineInfo()
{
    return {42,
            true,
            "ttyUSB0",
            BluetoothDeviceInfo("VELTO_5G_7", "00:11:22:33:44:55"),
            "SERIAL",
            "A1-7",
            "line 2",
            "LUMINA 100",
            "P-100",
            "K7",
            SerialDeviceType::Dispenser};
}

inline DispenserInfo filledDispenserInfo()
{
    return {filledMachineInfo(), 3, 2, true};
}

inline MixerInfo filledMixerInfo()
{
    return {filledMachineInfo(), 5};
}

inline Value machineInfoStruct()
{
    return structOf({{"sid", 42},
                     {"enabled", true},
                     {"serial_port", "ttyUSB0"},
                     {"bt_conn_name", "VELTO_5G_7"},
                     {"bt_conn_address", "00:11:22:33:44:55"},
                     {"conn_type", "SERIAL"},
                     {"serial_number", "A1-7"},
                     {"description", "line 2"},
                     {"model", "LUMINA 100"},
                     {"product_code", "P-100"},
                     {"key_code", "K7"},
                     {"device_type", 1}});
}

inline Value dispenserInfoStruct()
{
    Value value = machineInfoStruct();
    value["disp_id"] = 3;
    value["tinting_parallelism"] = 2;
    value["rotating_disp"] = true;
    return value;
}

inline Value mixerInfoStruct()
{
    Value value = machineInfoStruct();
    value["device_type"] = 4;
    value["mixer_id"] = 5;
    return value;
}

constexpr char dispenserInfoDump[] =
    R"({"bt_conn_address": "00:11:22:33:44:55", "bt_conn_name": "VELTO_5G_7", "conn_type": "SERIAL", )"
    R"("description": "line 2", "device_type": 1, "disp_id": 3, "enabled": true, "key_code": "K7", )"
    R"("model": "LUMINA 100", "product_code": "P-100", "rotating_disp": true, "serial_number": "A1-7", )"
    R"("serial_port": "ttyUSB0", "sid": 42, "tinting_parallelism": 2})";

constexpr char mixerInfoDump[] =
    R"({"bt_conn_address": "00:11:22:33:44:55", "bt_conn_name": "VELTO_5G_7", "conn_type": "SERIAL", )"
    R"("description": "line 2", "device_type": 4, "enabled": true, "key_code": "K7", "mixer_id": 5, )"
    R"("model": "LUMINA 100", "product_code": "P-100", "serial_number": "A1-7", "serial_port": "ttyUSB0", )"
    R"("sid": 42})";

/** The struct without one member. */
inline Value infoWithout(const Value &value, const std::string &key)
{
    Value rest;
    for (const auto &[name, member] : value) {
        if (name != key)
            rest[name] = member;
    }
    return rest;
}

inline Value infoWith(Value value, const std::string &key, const Value &member)
{
    value[key] = member;
    return value;
}

/** What refuses a machine's struct, in the order in which it is found. */
struct InfoRefusal
{
    const char *key;
    const char *code;
    const char *text;
};
constexpr InfoRefusal machineInfoRefusals[] = {
    {"enabled", "DE00766", "MachineInfo: expected enabled value"},
    {"sid", "DE00746", "MachineInfo: expected SID_value value"},
    {"serial_number", "DE00747", "MachineInfo: expected serial_number value"},
    {"description", "DE00762", "MachineInfo: expected description value"},
    {"model", "DE00767", "MachineInfo: expected model value"},
    {"product_code", "DE00768", "MachineInfo: expected productCode value"},
};
constexpr char machineInfoFunction[] = "MachineInfo::MachineInfo(const XmlRpc::XmlRpcValue&)";

using InfoChange = std::function<void(MachineInfo &)>;

/** One change of each field that tells which machine it is. */
inline std::vector<InfoChange> identityChanges()
{
    return {
        [](MachineInfo &info) { info.SID = 43; },
        [](MachineInfo &info) { info.enabled = false; },
        [](MachineInfo &info) { info.serialNumber = "A1-8"; },
        [](MachineInfo &info) { info.description = "line 3"; },
        [](MachineInfo &info) { info.model = "LUMINA 200"; },
        [](MachineInfo &info) { info.productCode = "P-200"; },
        [](MachineInfo &info) { info.keyCode = "K8"; },
        [](MachineInfo &info) { info.serialDeviceType = SerialDeviceType::Scale; },
    };
}

/** One change of each field that tells how it is reached. */
inline std::vector<InfoChange> linkChanges()
{
    return {
        [](MachineInfo &info) { info.serialConnectionName = "ttyUSB1"; },
        [](MachineInfo &info) { info.btConnectionName = "VELTO_5G_8"; },
        [](MachineInfo &info) { info.btConnectionAddress = "00:11:22:33:44:66"; },
        [](MachineInfo &info) { info.connectionType = "BLUETOOTH"; },
    };
}

} // namespace testing_base
