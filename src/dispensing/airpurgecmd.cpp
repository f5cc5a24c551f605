// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/airpurgecmd.h"

#include "base/gate_p.h"
#include "base/translation_p.h"
#include "catalogue/protocommandlist.h"

namespace {

constexpr int airPurgeCriterion = 9;

constexpr quv::FamilyGate purgesAir[] = {{68, 2}, {72}};

} // namespace

AirpurgeCmd::AirpurgeCmd()
{
    setDefaults();
}

AirpurgeCmd::AirpurgeCmd(const PCircuitFormula &formula, const FW_Dispenser *dispenser)
    : Pack2Cmd(formula, dispenser)
{
    setDefaults();
}

AirpurgeCmd::AirpurgeCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser)
    : Pack2Cmd(value, dispenser)
{
    setDefaults();
}

AirpurgeCmd::AirpurgeCmd(QList<QVariant> list, const FW_Dispenser *dispenser) : Pack2Cmd(list, dispenser)
{
    setDefaults();
}

AirpurgeCmd *AirpurgeCmd::clone() const
{
    return new AirpurgeCmd(*this);
}

void AirpurgeCmd::setDefaults()
{
    setCommand(ProtoCommandList::cmdStr(ProtoCommandList::AIRPURGE));
    m_formula.executionCriterion = airPurgeCriterion;
}

bool AirpurgeCmd::isSupportedCommand(const FW_Version &version) const
{
    return quv::passesGate(purgesAir, version);
}

TString AirpurgeCmd::actionString(bool detailed) const
{
    if (!detailed || m_formula.targetCircuits.isEmpty())
        return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Air purge in progress"), quv::translationContext);
    return TString(QT_TRANSLATE_NOOP("QuvProtocol", "Air purge in progress on position %1"),
                   quv::translationContext)
        .arg(QString::number(m_formula.targetCircuits.constFirst().positionID), false);
}
