// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/bluetoothdeviceinfo.h"
#include "base/objectfield_p.h"

namespace quv {

constexpr Refusal noBluetoothName = {"DE03031", "BluetoothDeviceInfo: expected name value"};
constexpr Refusal noBluetoothAddress = {"DE03032", "BluetoothDeviceInfo: expected address value"};

template <>
inline constexpr const char *markOf<BluetoothDeviceInfo> = BluetoothDeviceInfo::btName_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 2> ownRefusals<BluetoothDeviceInfo> = {
    {{"without a good bt_name", noBluetoothName}, {"without a good bt_address", noBluetoothAddress}}};

template <>
const FieldType &fieldType<BluetoothDeviceInfo>();
/** An array of structs; of variants also a list of devices under its own name. */
template <>
const FieldType &fieldType<BluetoothDeviceInfoList>();

} // namespace quv
