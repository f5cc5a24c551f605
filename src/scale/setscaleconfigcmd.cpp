// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/setscaleconfigcmd.h"

#include "base/describedcommand_p.h"
#include "scale/scaleconfigbase_p.h"

#include <QuvFramework/fw_scale.h>

namespace {

/** Of an array or a list. */
template <class Arguments>
ScaleConfigBase configIn(const Arguments &arguments)
{
    return arguments.size() == 0 ? ScaleConfigBase() : ScaleConfigBase(arguments);
}

} // namespace

struct SetScaleConfigCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_SCALE_CONFIG;
    static constexpr auto commandText = "Scale configuration read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Retrieving scale configuration");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument(
            {"config",
             "\"scale\", as the answer to GET_SCALE_CONFIG tells it; 0 for none (in a list the scale alone)"},
            "struct", SetScaleConfigCmd().xmlrpc_parameters()[0]);
        teller.refuse("another type", {quv::noScale, quv::noScaleInList});
    }
};

template class quv::DescribedCommand<SetScaleConfigCmd, ConfProtoCommand>;

SetScaleConfigCmd::SetScaleConfigCmd(const FW_Scale &scale) : ScaleConfigBase(scale) {}

SetScaleConfigCmd::SetScaleConfigCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      ScaleConfigBase(configIn(value))
{}

SetScaleConfigCmd::SetScaleConfigCmd(QList<QVariant> list)
    : DescribedCommand(list),
      ScaleConfigBase(configIn(list))
{}

SetScaleConfigCmd *SetScaleConfigCmd::clone() const
{
    return new SetScaleConfigCmd(*this);
}

QList<QVariant> SetScaleConfigCmd::parameters() const
{
    return variantParameters();
}

XmlRpc::XmlRpcValue SetScaleConfigCmd::xmlrpc_parameters(bool *ok) const
{
    return xmlrpcvalue(ok);
}
