// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/getbluetoothsettingscmd.h"

#include "base/describedcommand_p.h"
#include "settings/bluetoothsettingsanswer.h"

struct GetBluetoothSettingsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_BT_SETTINGS;
    static constexpr auto commandText = "Bluetooth settings read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading bluetooth settings");

    static constexpr char answerFailed[] = "Failed to create GravSettingsAnswer"; // users know it so
    static constexpr quv::AnsweredBy<BluetoothSettingsAnswer> answer = {
        {}, {"DE02414", answerFailed}, {"DE02414", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &) {} // there are none
};

template class quv::DescribedCommand<GetBluetoothSettingsCmd, ConfProtoCommand>;

GetBluetoothSettingsCmd::GetBluetoothSettingsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{}

GetBluetoothSettingsCmd::GetBluetoothSettingsCmd(QList<QVariant> list) : DescribedCommand(list) {}

GetBluetoothSettingsCmd *GetBluetoothSettingsCmd::clone() const
{
    return new GetBluetoothSettingsCmd(*this);
}
