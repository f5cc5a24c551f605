// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/pcircuitformula.h"

#include "base/gate_p.h"
#include "dispensing/pcircuitformula_p.h"

#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_xmlrpc.h>

namespace {

using XmlRpc::XmlRpcValue;

constexpr quv::FamilyGate hasCriterion8[] = {{68, 2}, {72}};
constexpr quv::FamilyGate hasCriterion16[] = {{70, 1}};

const bool isRegistered = RegisterTravellingType<PCircuitFormula>("PCircuitFormula");

} // namespace

PCircuitFormula::PCircuitFormula(const XmlRpcValue &value)
{
    if (value.getType() != XmlRpcValue::TypeStruct)
        quv::throwRefusal(quv::noCircuitList, Q_FUNC_INFO);
    if (!DecodeXmlRpcValue(value, executionCriterion_TAG, executionCriterion))
        quv::throwRefusal(quv::noCriterion, Q_FUNC_INFO);
    const XmlRpcValue *circuits = FindXmlRpcMember(value, targetCircuits_TAG);
    if (!circuits)
        return;
    if (circuits->getType() != XmlRpcValue::TypeArray)
        quv::throwRefusal(quv::badPCircuit, Q_FUNC_INFO);
    targetCircuits.reserve(circuits->size());
    for (int i = 0; i < circuits->size(); ++i)
        targetCircuits.append(PCircuit((*circuits)[i]));
}

XmlRpcValue PCircuitFormula::toXmlRpcValue() const
{
    XmlRpcValue value;
    value[executionCriterion_TAG] = executionCriterion;
    XmlRpcValue &circuits = value[targetCircuits_TAG];
    circuits.setSize(targetCircuits.size());
    for (int i = 0; i < targetCircuits.size(); ++i)
        circuits[i] = targetCircuits.at(i).toXmlRpcValue();
    return value;
}

bool PCircuitFormula::isSupportedExecutionCriterion(int criterion, const FW_Version &version)
{
    switch (criterion) {
    case 1:
    case 2:
        return true;
    case 8:
        return quv::passesGate(hasCriterion8, version);
    case 16:
        return quv::passesGate(hasCriterion16, version);
    default:
        return false;
    }
}

bool PCircuitFormula::operator==(const PCircuitFormula &other) const
{
    return executionCriterion == other.executionCriterion && targetCircuits == other.targetCircuits;
}
