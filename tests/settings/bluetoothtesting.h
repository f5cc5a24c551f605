// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"
#include "base/bluetoothdeviceinfo.h"

// The Bluetooth of a driver in its forms, for the tests of all that carries it.

namespace testing_settings {

using namespace testing_base;

constexpr char invalid[] = "BluetoothSettingsBase decoding failed: invalid QVariant value";
constexpr char dump[] =
    R"({"bt_banned_devices": [{"bt_address": "00:33", "bt_name": "VELTO 3"}], "bt_enabled": true, )"
    R"("bt_target_devices": [{"bt_address": "00:11", "bt_name": "VELTO 1"}, )"
    R"({"bt_address": "00:22", "bt_name": "VELTO 2"}]})";

inline BluetoothDeviceInfoList targets()
{
    return QList<BluetoothDeviceInfo>{{"VELTO 1", "00:11"}, {"VELTO 2", "00:22"}};
}

inline BluetoothDeviceInfoList banned()
{
    return QList<BluetoothDeviceInfo>{{"VELTO 3", "00:33"}};
}

inline List settingsList()
{
    return {true, QVariant::fromValue(targets()), QVariant::fromValue(banned())};
}

inline List settingsListOfMaps()
{
    return {true,
            QVariantList{QVariantMap{{"bt_name", "VELTO 1"}, {"bt_address", "00:11"}},
                         QVariantMap{{"bt_name", "VELTO 2"}, {"bt_address", "00:22"}}},
            QVariantList{QVariantMap{{"bt_name", "VELTO 3"}, {"bt_address", "00:33"}}}};
}

inline Value settingsStruct()
{
    return structOf(
        {{"bt_enabled", true},
         {"bt_target_devices", arrayOf(structOf({{"bt_name", "VELTO 1"}, {"bt_address", "00:11"}}),
                                       structOf({{"bt_name", "VELTO 2"}, {"bt_address", "00:22"}}))},
         {"bt_banned_devices", arrayOf(structOf({{"bt_name", "VELTO 3"}, {"bt_address", "00:33"}}))}});
}

} // namespace testing_settings
