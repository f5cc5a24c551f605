// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/bluetoothsettingsbase.h"

#include "settings/bluetoothsettingsbase_p.h"

namespace {

const quv::Record<BluetoothSettingsBase> &record()
{
    static const quv::Record<BluetoothSettingsBase> record(
        BluetoothSettingsBase::Description::members<BluetoothSettingsBase>());
    return record;
}

} // namespace

BluetoothSettingsBase::BluetoothSettingsBase(bool enabled, const BluetoothDeviceInfoList &targetDevices,
                                             const BluetoothDeviceInfoList &bannedDevices)
    : m_enabled(enabled),
      m_targetDevices(targetDevices),
      m_bannedDevices(bannedDevices)
{}

BluetoothSettingsBase::BluetoothSettingsBase(QList<QVariant> list)
{
    record().decode(list, *this, Q_FUNC_INFO);
}

BluetoothSettingsBase::BluetoothSettingsBase(const XmlRpc::XmlRpcValue &value)
{
    record().decode(value, *this, Q_FUNC_INFO);
}

QList<QVariant> BluetoothSettingsBase::variantParameters() const
{
    return {m_enabled, QVariant::fromValue(m_targetDevices), QVariant::fromValue(m_bannedDevices)};
}

XmlRpc::XmlRpcValue BluetoothSettingsBase::xmlrpcvalue(bool *ok) const
{
    if (ok)
        *ok = true;
    return record().encode(*this);
}

bool BluetoothSettingsBase::operator==(const BluetoothSettingsBase &other) const
{
    return record().equal(*this, other);
}
