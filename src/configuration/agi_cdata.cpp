// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/agi_cdata.h"

#include "configuration/confrow_p.h"

namespace {

constexpr int code = 6;

constexpr quv::ConfCodes codes = {
    "DE00234", "Invalid Dispenser data", "DE02807", "DE00237", "DE00243", "DE00244", "DE00245"};

constexpr int allCanisters = 245;
// what is told of a circuit that the machine does not have
constexpr int noCanister = 1;
constexpr int noPosition = 111;

struct StirringRow
{
    FW_StirringMotor motor;
    int canisterID = 0;
    int positionID = 0;
};

template <auto get, auto set>
constexpr quv::ConfAccess<StirringRow> ofMotor = {
    [](const StirringRow &row) { return std::invoke(get, row.motor); },
    [](StirringRow &row, int value) { std::invoke(set, row.motor, value); }};

constexpr quv::ConfAccess<StirringRow> pause = {
    [](const StirringRow &row) { return row.motor.stirringPause(FW_TimeSpan::Minutes); },
    [](StirringRow &row, int value) { row.motor.setStirringPause(value, FW_TimeSpan::Minutes); }};

using M = FW_StirringMotor;

constexpr quv::ConfField<StirringRow> fields[] = {
    {"Canister ID", "DE00238", quv::byMember<StirringRow, &StirringRow::canisterID>},
    {"Position ID", "DE00239", quv::byMember<StirringRow, &StirringRow::positionID>},
    {"Stirring Duration", "DE00240", ofMotor<&M::stirringActivity, &M::setStirringActivity>},
    {"Stirring Pause", "DE00241", pause},
    {"Stirring Policy", "DE00242", ofMotor<&M::stirringPolicy, &M::setStirringPolicy>},
    {"Stirring Motor Stepper Resolution", "DE00872", ofMotor<&M::resolution, &M::setResolution>, 6,
     [](StirringRow &row) { row.motor.setResolution(M::defaultResolution(M::Stirring)); }},
    {"Stirring Motor Supplying Current", "DE00636", ofMotor<&M::supplyingCurrent, &M::setSupplyingCurrent>, 7,
     [](StirringRow &row) { row.motor.setSupplyingCurrent(M::defaultSupplyingCurrent(M::Stirring, -1)); }},
    {"Stirring Speed", "DE01598", ofMotor<&M::speed, &M::setSpeed>, 8,
     [](StirringRow &row) { row.motor.setSpeed(100); }},
    {"Stirring Wire Board ID", "DE01941", ofMotor<&M::wireBoardId, &M::setWireBoardId>, 9,
     [](StirringRow &row) { row.motor.setWireBoardId(0); }},
    {"Stirring Wire Connectors ID", "DE01942",
     ofMotor<&M::wireConnectorsIdBitMask, &M::setWireConnectorsIdBitMask>, 10,
     [](StirringRow &row) { row.motor.setWireConnectorId(0); }},
};

} // namespace

AGI_cdata::AGI_cdata() : ConfData(code) {}

AGI_cdata::AGI_cdata(int circuitID, const FW_Machine *machine) : ConfData(code, machine)
{
    const FW_Dispenser &dispenser = quv::confDispenser(machine, codes, Q_FUNC_INFO);
    const FW_StirringMotor *motor = dispenser.hasGlobalStirring() ? dispenser.firstStirringMotor() : nullptr;
    if (motor) {
        m_canisterID = allCanisters;
        m_positionID = allCanisters;
    } else if (const FW_Circuit *circuit = dispenser.getCircuitById(circuitID)) {
        motor = circuit->firstStirringMotor();
        m_canisterID = dispenser.getCanisterOfCircuitID(circuitID)->id();
        m_positionID = circuit->positionId();
    } else {
        m_canisterID = noCanister;
        m_positionID = noPosition;
    }
    m_cmdEnabled = Absent;
    if (motor) {
        m_motor = *motor;
        setCommandEnable(motor->isEnabled());
    }
    m_parameters = quv::writtenConfParameters(fields, StirringRow{m_motor, m_canisterID, m_positionID});
}

AGI_cdata::AGI_cdata(QStringList tokens, int fieldCount) : ConfData(code, tokens)
{
    quv::readConfTokens(fields, codes, tokens, m_enabledFieldLength, fieldCount, m_parameters, Q_FUNC_INFO);
    quv::updateLocalDataOrThrow(*this, codes.tokensData, Q_FUNC_INFO);
}

AGI_cdata::AGI_cdata(QString row) : ConfData(code, row)
{
    quv::updateLocalDataOrThrow(*this, codes.textData, Q_FUNC_INFO);
}

AGI_cdata *AGI_cdata::clone() const
{
    return new AGI_cdata(*this);
}

QStringList AGI_cdata::labels()
{
    return quv::confLabels(fields);
}

void AGI_cdata::clear()
{
    m_motor = FW_StirringMotor();
    m_canisterID = 0;
    m_positionID = 0;
}

bool AGI_cdata::updateLocalData(QString *error)
{
    StirringRow row = {m_motor, m_canisterID, m_positionID};
    if (!quv::readConfParameters(fields, m_parameters, row, error))
        return false;
    m_motor = row.motor;
    m_canisterID = row.canisterID;
    m_positionID = row.positionID;
    return true;
}

bool AGI_cdata::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *, QList<int> *) const
{
    if (m_cmdEnabled == Absent)
        return true;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    if (!dispenser)
        return false;
    FW_StirringMotor motor = m_motor;
    motor.setEnabled(m_cmdEnabled == Enabled);
    if (m_canisterID == allCanisters) {
        dispenser->setStirringMotor(motor);
        return true;
    }
    if (!dispenser->hasCanisterID(m_canisterID))
        dispenser->addCanister(FW_Canister(m_canisterID), -1, false);
    FW_Circuit *circuit = dispenser->getCircuitByPosition(m_positionID);
    if (!circuit)
        circuit = dispenser->addNewCircuit(m_canisterID, m_positionID, 0);
    if (!circuit)
        return false;
    circuit->setStirringMotor(motor);
    return true;
}

XmlRpc::XmlRpcValue AGI_cdata::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
