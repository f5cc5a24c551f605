// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/setbluetoothsettingscmd.h"

#include "base/describedcommand_p.h"
#include "settings/bluetoothsettingsbase_p.h"

namespace {

/** The argument; an empty value when there is none, which has no settings. */
XmlRpc::XmlRpcValue argumentOf(const XmlRpc::XmlRpcValue &value)
{
    const XmlRpc::XmlRpcValue *argument = FindXmlRpcElement(value, 0);
    return argument ? *argument : XmlRpc::XmlRpcValue();
}

} // namespace

struct SetBluetoothSettingsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_BT_SETTINGS;
    static constexpr auto commandText = "Bluetooth settings update";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating bluetooth settings");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"settings",
                         "a struct with bt_enabled, bt_target_devices and bt_banned_devices (in a list "
                         "these three are arguments of their own)"},
                        "struct");
        teller.refuse("bt_enabled is missing or of another type",
                      {quv::noBluetoothEnabled, quv::noBluetoothEnabled});
        teller.refuse("bt_target_devices is missing or of another type",
                      {quv::noTargetDevices, quv::noTargetDevices});
        teller.refuse("bt_banned_devices is missing or of another type",
                      {quv::noBannedDevices, quv::noBannedDevices});
        teller.refuse("a device without a good bt_name", {quv::noBluetoothName, {}});
        teller.refuse("a device without a good bt_address", {quv::noBluetoothAddress, {}});
    }
};

template class quv::DescribedCommand<SetBluetoothSettingsCmd, ConfProtoCommand>;

SetBluetoothSettingsCmd::SetBluetoothSettingsCmd(bool enabled, const BluetoothDeviceInfoList &targetDevices,
                                                 const BluetoothDeviceInfoList &bannedDevices)
    : BluetoothSettingsBase(enabled, targetDevices, bannedDevices)
{}

SetBluetoothSettingsCmd::SetBluetoothSettingsCmd(const BluetoothSettingsBase &settings)
    : BluetoothSettingsBase(settings)
{}

SetBluetoothSettingsCmd::SetBluetoothSettingsCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      BluetoothSettingsBase(argumentOf(value))
{}

SetBluetoothSettingsCmd::SetBluetoothSettingsCmd(QList<QVariant> list)
    : DescribedCommand(list),
      BluetoothSettingsBase(list)
{}

SetBluetoothSettingsCmd *SetBluetoothSettingsCmd::clone() const
{
    return new SetBluetoothSettingsCmd(*this);
}

QList<QVariant> SetBluetoothSettingsCmd::parameters() const
{
    return variantParameters();
}

XmlRpc::XmlRpcValue SetBluetoothSettingsCmd::xmlrpc_parameters(bool *ok) const
{
    XmlRpc::XmlRpcValue array;
    array[0] = xmlrpcvalue(ok);
    return array;
}
