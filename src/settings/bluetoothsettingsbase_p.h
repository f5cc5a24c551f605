// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/bluetoothdeviceinfo_p.h"
#include "base/record_p.h"
#include "settings/bluetoothsettingsbase.h"

namespace quv {

constexpr char badBluetoothSettings[] = "BluetoothSettingsBase decoding failed: invalid QVariant value";
constexpr Refusal noBluetoothEnabled = {"DE02446", badBluetoothSettings};
constexpr Refusal noTargetDevices = {"DE02447", badBluetoothSettings};
constexpr Refusal noBannedDevices = {"DE02448", badBluetoothSettings};

} // namespace quv

/** The members of the struct, for every class that derives from it. */
struct BluetoothSettingsBase::Description
{
    template <class T>
    static std::vector<quv::Member<T>> members()
    {
        using Settings = BluetoothSettingsBase;
        return {{enabled_TAG, &Settings::m_enabled, quv::noBluetoothEnabled, quv::noBluetoothEnabled},
                {targetDevices_TAG, &Settings::m_targetDevices, quv::noTargetDevices, quv::noTargetDevices},
                {bannedDevices_TAG, &Settings::m_bannedDevices, quv::noBannedDevices, quv::noBannedDevices}};
    }
};
