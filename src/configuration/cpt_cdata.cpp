// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/cpt_cdata.h"

#include "configuration/cptapplying_p.h"
#include "configuration/cptfields_p.h"
#include "configuration/cptwriting_p.h"

namespace {

constexpr int code = 5;

constexpr quv::ConfCodes codes = {
    "DE00209", "Invalid Dispenser data", "DE02808", "DE00213", "DE00231", "DE00232", "DE00233"};

} // namespace

CPT_cdata::CPT_cdata() : ConfData(code) {}

CPT_cdata::CPT_cdata(int circuitID, const FW_Machine *machine) : ConfData(code, machine)
{
    const FW_Dispenser &dispenser = quv::confDispenser(machine, codes, Q_FUNC_INFO);
    m_cmdEnabled = Absent;
    m_canisterID = 1;
    m_canisterSize = 100;
    if (const FW_Circuit *circuit = dispenser.getCircuitById(circuitID))
        takeCircuit(*circuit, dispenser);
    m_parameters = quv::writtenCircuit(*this, dispenser.model());
}

CPT_cdata::CPT_cdata(QStringList tokens, int fieldCount) : ConfData(code, tokens)
{
    FW_DriverError error;
    if (!parseConfigurationParams(tokens, fieldCount, m_enabledFieldLength + 1, error))
        throw FW_Exception(error, Q_FUNC_INFO);
    quv::updateLocalDataOrThrow(*this, codes.tokensData, Q_FUNC_INFO);
}

CPT_cdata::CPT_cdata(QString row) : ConfData(code, row)
{
    quv::updateLocalDataOrThrow(*this, codes.textData, Q_FUNC_INFO);
}

CPT_cdata *CPT_cdata::clone() const
{
    return new CPT_cdata(*this);
}

QStringList CPT_cdata::labels()
{
    return quv::confLabels(quv::circuitFields);
}

void CPT_cdata::clear()
{
    m_circuit = FW_Circuit();
    m_levelSensor.reset();
    m_canisterID = 0;
    m_activationFlag = false;
    m_canisterSize = 0;
    m_rampReference = 0;
    m_singleTransmissionReference = 0;
    m_flowCorrectionReference = 0;
    m_layoutPositionsId.clear();
    m_isOfRow = false;
}

void CPT_cdata::takeCircuit(const FW_Circuit &circuit, const FW_Dispenser &dispenser)
{
    const FW_Canister &canister = *dispenser.getCanisterOfCircuitID(circuit.id());
    m_circuit = circuit;
    setCommandEnable(circuit.isEnabled());
    m_canisterID = canister.id();
    m_canisterSize = quv::scaled(canister.maximumQuantity(), 1) / quv::CircuitRow::quantityUnit;
    m_activationFlag = canister.activationFlag();
    m_layoutPositionsId = canister.layoutPositionsId();
    const FW_CanisterLevelSensor *sensor = canister.canisterLevelSensor();
    if (sensor && dispenser.getCLS_MasterPositionID(canister.id()) == circuit.positionId())
        m_levelSensor = *sensor;
    m_rampReference = dispenser.getRampConfigRefByCircuitID(circuit.id());
    m_singleTransmissionReference = dispenser.getSingleTransmissionConfigRefByCircuitID(circuit.id());
    m_flowCorrectionReference = dispenser.getFlowCorrectionConfigRefByCircuitID(circuit.id());
}

bool CPT_cdata::parseConfigurationParams(QStringList tokens, int fieldCount, int position,
                                         FW_DriverError &error)
{
    m_parameters.clear();
    if (position < 0 || position > tokens.size())
        return FW_DriverError::D_E(codes.noData, "No data found in answer", error);
    try {
        quv::readConfFields(quv::circuitFields, codes.newData, tokens, position, fieldCount, m_parameters,
                            Q_FUNC_INFO);
    } catch (const FW_Exception &missing) {
        return FW_DriverError::D_E(missing.code(), missing.text(), error);
    }
    return true;
}

bool CPT_cdata::updateLocalData(QString *error)
{
    quv::CircuitRow row;
    if (!quv::readConfParameters(quv::circuitFields, m_parameters, row, error))
        return false;
    m_canisterID = row.canisterID;
    m_canisterSize = row.canisterSize;
    m_activationFlag = row.activationFlag;
    m_circuit.setPositionId(row.positionID, QString());
    m_circuit.setWireBoardId(row.wireBoardID);
    m_circuit.setWireConnectorId(row.wireConnectorID);
    if (row.valve.valveType() != 0)
        m_circuit.addValve(row.valve);
    m_circuit.setDosingMotor(row.motor, FW_Circuit::ReplaceAll);
    m_isOfRow = true;
    if (row.hasRecirculation)
        m_circuit.setRecirculationMotor(row.recirculation);
    if (row.hasCleaning)
        m_circuit.setCleaningMotor(row.cleaning);
    m_levelSensor.reset();
    if (row.hasSensor)
        m_levelSensor = row.sensor;
    m_rampReference = row.rampReference;
    m_singleTransmissionReference = row.singleTransmissionReference;
    m_flowCorrectionReference = row.flowCorrectionReference;
    m_layoutPositionsId = row.layoutPositionsId;
    return true;
}

bool CPT_cdata::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                                    QList<int> *extra) const
{
    if (m_cmdEnabled == Absent)
        return true;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    if (!dispenser)
        return false;
    const auto source = m_isOfRow ? quv::CircuitSource::Row : quv::CircuitSource::Machine;
    return quv::applyCircuit(*this, source, *dispenser, profiles, extra);
}

XmlRpc::XmlRpcValue CPT_cdata::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
