// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgecmd.h"

#include "base/describedcommand_p.h"

#include <QuvFramework/fw_dispenser.h>

struct PurgeCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::PURGE;
    static constexpr auto commandText = "Purge";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Purge in progress");
};

template class quv::DescribedCommand<PurgeCmd, SerialProtoCommand>;

PurgeCmd::PurgeCmd(const FW_Dispenser *dispenser) : DescribedCommand(dispenser) {}

PurgeCmd::PurgeCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : DescribedCommand(value, dispenser)
{}

PurgeCmd::PurgeCmd(QList<QVariant> list, const FW_Dispenser *dispenser) : DescribedCommand(list, dispenser) {}

PurgeCmd *PurgeCmd::clone() const
{
    return new PurgeCmd(*this);
}

TString PurgeCmd::purgeOf(const QString &formula)
{
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Purge of formula: %1"), quv::translationContext)
        .arg(formula, false);
}
