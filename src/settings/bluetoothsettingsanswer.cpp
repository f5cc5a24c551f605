// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/bluetoothsettingsanswer.h"

#include "base/describedanswer_p.h"
#include "settings/bluetoothsettingsbase_p.h"

struct BluetoothSettingsAnswer::Description
{
    static std::vector<quv::Member<BluetoothSettingsAnswer>> members()
    {
        return BluetoothSettingsBase::Description::members<BluetoothSettingsAnswer>();
    }
};

template class quv::DescribedAnswer<BluetoothSettingsAnswer, ConfProtoAnswer>;

BluetoothSettingsAnswer::BluetoothSettingsAnswer(bool enabled, const BluetoothDeviceInfoList &targetDevices,
                                                 const BluetoothDeviceInfoList &bannedDevices)
    : BluetoothSettingsBase(enabled, targetDevices, bannedDevices)
{}

BluetoothSettingsAnswer::BluetoothSettingsAnswer(const XmlRpc::XmlRpcValue &value)
    : DescribedAnswer(value),
      BluetoothSettingsBase(value)
{}

BluetoothSettingsAnswer::BluetoothSettingsAnswer(QList<QVariant> &list)
    : DescribedAnswer(list),
      BluetoothSettingsBase(list)
{}

BluetoothSettingsAnswer *BluetoothSettingsAnswer::clone() const
{
    return new BluetoothSettingsAnswer(*this);
}
