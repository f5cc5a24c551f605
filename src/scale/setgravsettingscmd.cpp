// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/setgravsettingscmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "scale/gravsettingsbase_p.h"

struct SetGravSettingsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_GRAV_SETTINGS;
    static constexpr auto commandText = "Gravimetric settings update";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating gravimetric settings");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"settings", quv::gravSettingsArgument}, "struct");
        teller.refuse("another type", {quv::noGravSettingsStruct, quv::badGravSettingsInList});
        teller.refuse("circuits_grav_settings is missing or of another type", {quv::noGravSettingsArray, {}});
        teller.refuse("a circuit without a position", {quv::badGravSettings, quv::badGravSettingsInList});
        teller.refuse("a circuit with a wrong member", {quv::toldOfMachineData, {}});
    }
};

template class quv::DescribedCommand<SetGravSettingsCmd, ConfProtoCommand>;

SetGravSettingsCmd::SetGravSettingsCmd(const QMap<int, GravimetricSettings> &settings)
    : GravSettingsBase(settings)
{}

SetGravSettingsCmd::SetGravSettingsCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      GravSettingsBase(value)
{}

SetGravSettingsCmd::SetGravSettingsCmd(QList<QVariant> list) : DescribedCommand(list), GravSettingsBase(list)
{}

SetGravSettingsCmd *SetGravSettingsCmd::clone() const
{
    return new SetGravSettingsCmd(*this);
}

QList<QVariant> SetGravSettingsCmd::parameters() const
{
    return variantParameters();
}

XmlRpc::XmlRpcValue SetGravSettingsCmd::xmlrpc_parameters(bool *ok) const
{
    return xmlrpcvalue(ok);
}
