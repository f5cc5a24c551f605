// SPDX-License-Identifier: LGPL-3.0-or-later
#include "dispensing/circuitlistcmd.h"

#include "base/digits_p.h"
#include "base/gate_p.h"
#include "dispensing/pcircuitformula_p.h"

namespace {

constexpr quv::FamilyGate takesCircuitLists[] = {{63, 32}, {70}, {72}};

} // namespace

CircuitListCmd::CircuitListCmd(const QString &command, const FW_Machine *machine)
    : SerialProtoCommand(command, machine)
{}

CircuitListCmd::CircuitListCmd(const QString &command, const XmlRpc::XmlRpcValue &value,
                               const FW_Machine *machine)
    : SerialProtoCommand(command, value, machine)
{}

CircuitListCmd::CircuitListCmd(const QString &command, const QList<QVariant> &list, const FW_Machine *machine)
    : SerialProtoCommand(command, list, machine)
{}

QList<int> CircuitListCmd::serialParameters(int) const
{
    QList<int> parameters = {m_formula.executionCriterion, m_formula.targetCircuits.size()};
    for (const PCircuit &circuit : m_formula.targetCircuits) {
        parameters << circuit.positionID << circuit.queueID << circuit.speed;
        if (circuit.strokes > 0)
            quv::appendCountedDigits(parameters, circuit.strokes);
    }
    return parameters;
}

bool CircuitListCmd::isSupportedCommand(const FW_Version &version) const
{
    return quv::passesGate(takesCircuitLists, version);
}

bool CircuitListCmd::checkCircuits(const CheckCodes &codes, FW_DriverError &error) const
{
    const FW_Dispenser *dispenser = quv::dispenserOf(*this);
    if (!dispenser)
        return FW_DriverError::D_E(codes.noDispenser, quv::invalidCircuits, error);
    if (m_formula.targetCircuits.isEmpty())
        return FW_DriverError::D_E(codes.noCircuits, quv::invalidCircuits, error);
    if (!dispenser->hasCircuitPositions(positions(), true))
        return FW_DriverError::D_E(codes.unknownCircuit, quv::invalidCircuits, error);
    return true;
}

QList<int> CircuitListCmd::positions() const
{
    QList<int> positions;
    positions.reserve(m_formula.targetCircuits.size());
    for (const PCircuit &circuit : m_formula.targetCircuits)
        positions.append(circuit.positionID);
    return positions;
}

QString CircuitListCmd::positionsText() const
{
    QStringList texts;
    for (const int position : positions())
        texts.append(QString::number(position));
    return texts.join(QLatin1Char(','));
}
