// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/purgecmd.h"

#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"

#include <QuvFramework/fw_dispenser.h>

namespace {

QString name()
{
    return ProtoCommandList::cmdStr(ProtoCommandList::PURGE);
}

} // namespace

PurgeCmd::PurgeCmd() : PurgeCmd(nullptr) {}

PurgeCmd::PurgeCmd(const FW_Dispenser *dispenser) : SerialProtoCommand(name(), dispenser) {}

PurgeCmd::PurgeCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), value, dispenser)
{}

PurgeCmd::PurgeCmd(QList<QVariant> list, const FW_Dispenser *dispenser)
    : SerialProtoCommand(name(), list, dispenser)
{}

PurgeCmd *PurgeCmd::clone() const
{
    return new PurgeCmd(*this);
}

QString PurgeCmd::commandString() const
{
    return QStringLiteral("Purge");
}

TString PurgeCmd::actionString(bool) const
{
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Purge in progress"), quv::translationContext);
}

TString PurgeCmd::purgeOf(const QString &formula)
{
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Purge of formula: %1"), quv::translationContext)
        .arg(formula, false);
}
