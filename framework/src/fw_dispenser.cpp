// SPDX-License-Identifier: LGPL-3.0-or-later
#include "members_p.h"

#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_utils.h>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace {

const bool isDispenserRegistered = RegisterTravellingType<FW_Dispenser>("FW_Dispenser");

constexpr int lastModule = 31; // of as many bits as a mask has

/** The first element that fits, in place; null for none. Works on constant and on changeable lists. */
template <class List, class Fits>
auto *found(List &list, Fits fits)
{
    const auto element = std::find_if(std::begin(list), std::end(list), fits);
    return element == std::end(list) ? nullptr : &*element;
}

/** The first circuit of any canister that fits. */
template <class Canisters, class Fits>
auto foundCircuit(Canisters &canisters, Fits fits) -> decltype(found(canisters.begin()->circuits(), fits))
{
    for (auto &canister : canisters) {
        if (auto *circuit = found(canister.circuits(), fits))
            return circuit;
    }
    return nullptr;
}

auto isAtPosition(int position)
{
    return [position](const FW_Circuit &circuit) { return circuit.positionId() == position; };
}

template <class T>
auto hasId(int id)
{
    return [id](const T &object) { return object.id() == id; };
}

/** Runs \a visit for every circuit, in the canisters' order. */
template <class Canisters, class Visit>
void eachCircuit(Canisters &canisters, Visit visit)
{
    for (auto &canister : canisters) {
        for (auto &circuit : canister.circuits())
            visit(circuit);
    }
}

using ReferenceOf = int (FW_DosingMotor::*)() const;

/** The circuit whose dosing motor has the reference, when it is one. */
template <class Canisters>
auto circuitOfReference(Canisters &canisters, ReferenceOf referenceOf, int reference)
{
    return foundCircuit(canisters, [=](const FW_Circuit &circuit) {
        return reference > 0 && (circuit.dosingMotor().*referenceOf)() == reference;
    });
}

/** Runs \a change for every dosing motor with the reference; false when there is none. */
template <class Change>
bool changeMotors(QList<FW_Canister> &canisters, ReferenceOf referenceOf, int reference, Change change)
{
    // only then is what copies share taken apart
    if (!circuitOfReference(qAsConst(canisters), referenceOf, reference))
        return false;
    eachCircuit(canisters, [&](FW_Circuit &circuit) {
        if ((circuit.dosingMotor().*referenceOf)() == reference)
            change(circuit.changeableDosingMotor());
    });
    return true;
}

int lowestFreeCircuitID(const FW_Dispenser &dispenser)
{
    int id = 1;
    while (dispenser.hasCircuitID(id))
        ++id;
    return id;
}

bool isOfLine(const QString &modelName, QLatin1String line)
{
    return modelName.startsWith(line, Qt::CaseInsensitive);
}

} // namespace

FW_Dispenser *FW_Dispenser::clone() const
{
    return new FW_Dispenser(*this);
}

SerialDeviceType FW_Dispenser::machineType() const
{
    return SerialDeviceType::Dispenser;
}

bool FW_Dispenser::hasGravimetricSwDosingMotors() const
{
    return foundCircuit(m_canisters, [](const FW_Circuit &circuit) {
               return circuit.dosingMotor().isGravimetricSw();
           }) != nullptr;
}

bool FW_Dispenser::checkWorkingMode(int mode)
{
    return mode >= 0 && mode <= 8;
}

int FW_Dispenser::getFirmwareConfModulesID() const
{
    unsigned int mask = 0;
    for (const int module : m_modulesID) {
        if (module >= 1 && module <= lastModule)
            mask |= 1U << (module - 1);
    }
    return static_cast<int>(mask);
}

void FW_Dispenser::setFirmwareConfModulesID(int mask)
{
    m_modulesID.clear();
    for (int module = 1; module <= lastModule; ++module) {
        if (static_cast<unsigned int>(mask) & (1U << (module - 1)))
            m_modulesID.append(module);
    }
}

bool FW_Dispenser::canConfigureRCSProcess() const
{
    return foundCircuit(m_canisters, [](const FW_Circuit &circuit) {
               return circuit.firstRecirculationMotor() || circuit.firstCleaningMotor() ||
                      circuit.firstStirringMotor();
           }) != nullptr;
}

bool FW_Dispenser::getReserveSensorTypeAndPolicyMask(int &type, int &policy) const
{
    if (m_reserveSensor)
        std::tie(type, policy) = *m_reserveSensor;
    return m_reserveSensor.has_value();
}

void FW_Dispenser::setReserveSensorTypeAndPolicyMask(int type, int policy, bool onlyFirst)
{
    if (!onlyFirst || !m_reserveSensor)
        m_reserveSensor = {type, policy};
}

int FW_Dispenser::getCLS_MasterPositionID(int canisterID) const
{
    const FW_Canister *canister = getCanisterById(canisterID);
    const QList<int> positions = canister ? canister->getCircuitPositions(false) : QList<int>();
    return positions.isEmpty() ? 0 : *std::min_element(positions.cbegin(), positions.cend());
}

void FW_Dispenser::setINVTypeFromValve(int valveType)
{
    if (valveType == 3)
        m_INVType = 1;
    else if (valveType == 5)
        m_INVType = 2;
}

FW_Dispenser::FW_Dispenser(const XmlRpc::XmlRpcValue &value)
{
    quv::readMembers(value, *this, Q_FUNC_INFO);
}

XmlRpc::XmlRpcValue FW_Dispenser::toXmlRpcValue() const
{
    return quv::writtenMembers(*this);
}

bool FW_Dispenser::operator==(const FW_Dispenser &other) const
{
    return quv::haveSameMembers(*this, other);
}

bool FW_Dispenser::equalTo(const FW_Machine &other) const
{
    const auto *dispenser = dynamic_cast<const FW_Dispenser *>(&other);
    return dispenser && *this == *dispenser;
}

bool FW_Dispenser::addCanister(const FW_Canister &canister, int index, bool replace)
{
    if (hasCanisterID(canister.id())) {
        if (replace)
            *getCanisterById(canister.id()) = canister;
        return replace;
    }
    const bool atEnd = index < 0 || index > m_canisters.size();
    m_canisters.insert(atEnd ? m_canisters.size() : index, canister);
    return true;
}

FW_Circuit *FW_Dispenser::addNewCircuit(int canisterID, int position, int circuitID)
{
    const int id = circuitID == 0 ? lowestFreeCircuitID(*this) : circuitID;
    if (!hasCanisterID(canisterID) || position < 1 || hasCircuitPosition(position, false) || hasCircuitID(id))
        return nullptr;
    getCanisterById(canisterID)->addCircuit(FW_Circuit(id, position));
    return getCircuitById(id);
}

FW_Circuit *FW_Dispenser::addNewCircuit(const FW_Canister &canister, int position, int circuitID)
{
    return addNewCircuit(canister.id(), position, circuitID);
}

const FW_Canister *FW_Dispenser::getCanisterById(int id) const
{
    return found(m_canisters, hasId<FW_Canister>(id));
}

FW_Canister *FW_Dispenser::getCanisterById(int id)
{
    return found(m_canisters, hasId<FW_Canister>(id));
}

const FW_Canister *FW_Dispenser::getCanisterOfCircuitID(int circuitID) const
{
    return found(m_canisters, [circuitID](const FW_Canister &canister) {
        return found(canister.circuits(), hasId<FW_Circuit>(circuitID)) != nullptr;
    });
}

QVector<const FW_Canister *> FW_Dispenser::getEnabledCanisters(bool onlyWithCircuits) const
{
    QVector<const FW_Canister *> canisters;
    for (const FW_Canister &canister : m_canisters) {
        if (canister.isEnabled() && (!onlyWithCircuits || !canister.getCircuitPositions(true).isEmpty()))
            canisters.append(&canister);
    }
    return canisters;
}

QVector<const FW_Circuit *> FW_Dispenser::getCircuits() const
{
    QVector<const FW_Circuit *> circuits;
    eachCircuit(m_canisters, [&](const FW_Circuit &circuit) { circuits.append(&circuit); });
    return circuits;
}

QVector<const FW_Circuit *> FW_Dispenser::getEnabledCircuits() const
{
    QVector<const FW_Circuit *> circuits = getCircuits();
    circuits.erase(std::remove_if(circuits.begin(), circuits.end(),
                                  [](const FW_Circuit *circuit) { return !circuit->isEnabled(); }),
                   circuits.end());
    return circuits;
}

const FW_Circuit *FW_Dispenser::getCircuitById(int id) const
{
    return foundCircuit(m_canisters, hasId<FW_Circuit>(id));
}

FW_Circuit *FW_Dispenser::getCircuitById(int id)
{
    // only then is what copies share taken apart
    return hasCircuitID(id) ? foundCircuit(m_canisters, hasId<FW_Circuit>(id)) : nullptr;
}

const FW_Circuit *FW_Dispenser::getCircuitByPosition(int position) const
{
    return foundCircuit(m_canisters, isAtPosition(position));
}

FW_Circuit *FW_Dispenser::getCircuitByPosition(int position)
{
    // only then is what copies share taken apart
    return hasCircuitPosition(position, false) ? foundCircuit(m_canisters, isAtPosition(position)) : nullptr;
}

QList<int> FW_Dispenser::getPositionsIDList(bool onlyEnabled) const
{
    QList<int> positions;
    for (const FW_Canister &canister : m_canisters)
        positions += canister.getCircuitPositions(onlyEnabled);
    std::sort(positions.begin(), positions.end());
    return positions;
}

QList<int> FW_Dispenser::getPositionsIDSortedByCanister(bool onlyEnabled) const
{
    std::map<int, QList<int>> positionsOfCanisters;
    for (const FW_Canister &canister : m_canisters) {
        if (canister.isEnabled() || !onlyEnabled)
            positionsOfCanisters[canister.id()] += canister.getCircuitPositions(onlyEnabled);
    }
    QList<int> sorted;
    for (auto &[id, positions] : positionsOfCanisters) {
        std::sort(positions.begin(), positions.end());
        sorted += positions;
    }
    return sorted;
}

QList<int> FW_Dispenser::getRandomCircuitsID(int count) const
{
    QList<int> able;
    for (const FW_Canister &canister : m_canisters) {
        for (const FW_Circuit &circuit : canister.circuits()) {
            if (canister.isEnabled() && circuit.isEnabled() && circuit.hasDosingMotor() &&
                circuit.calibration().isUsable())
                able.append(circuit.id());
        }
    }
    QList<int> chosen;
    while (!able.isEmpty() && chosen.size() < count)
        chosen.append(able.takeAt(getRandomNumber(0, able.size() - 1)));
    return chosen;
}

bool FW_Dispenser::hasCircuitPosition(int position, bool onlyEnabled) const
{
    const FW_Circuit *circuit = getCircuitByPosition(position);
    return circuit && (circuit->isEnabled() || !onlyEnabled);
}

bool FW_Dispenser::hasCircuitPositions(const QList<int> &positions, bool onlyEnabled) const
{
    return std::all_of(positions.cbegin(), positions.cend(),
                       [&](int position) { return hasCircuitPosition(position, onlyEnabled); });
}

QVector<const FW_StirringMotor *> FW_Dispenser::stirringMotors() const
{
    QVector<const FW_StirringMotor *> motors;
    eachCircuit(m_canisters, [&](const FW_Circuit &circuit) {
        for (const FW_StirringMotor &motor : circuit.stirringMotors())
            motors.append(&motor);
    });
    return motors;
}

const FW_StirringMotor *FW_Dispenser::firstStirringMotor() const
{
    const FW_Circuit *circuit =
        foundCircuit(m_canisters, [](const FW_Circuit &c) { return c.firstStirringMotor() != nullptr; });
    return circuit ? circuit->firstStirringMotor() : nullptr;
}

bool FW_Dispenser::areStirringMotorsEnabled() const
{
    const QVector<const FW_StirringMotor *> motors = stirringMotors();
    return std::any_of(motors.cbegin(), motors.cend(),
                       [](const FW_StirringMotor *motor) { return motor->isEnabled(); });
}

const FW_StirringMotor *FW_Dispenser::getFirstStirringMotorOfCircuitPosition(int position,
                                                                             bool onlyEnabled) const
{
    const FW_Circuit *circuit = getCircuitByPosition(position);
    return circuit ? found(circuit->stirringMotors(),
                           [=](const FW_StirringMotor &motor) { return motor.isEnabled() || !onlyEnabled; })
                   : nullptr;
}

QList<int> FW_Dispenser::getPositionsIDListOfStirringMotors(bool onlyEnabledCircuits,
                                                            bool onlyEnabledMotors) const
{
    QList<int> stirred;
    for (const int position : getPositionsIDList(onlyEnabledCircuits)) {
        if (getFirstStirringMotorOfCircuitPosition(position, onlyEnabledMotors))
            stirred.append(position);
    }
    return stirred;
}

QList<int> FW_Dispenser::getStirringActivitiesForPositions(const QList<int> &positions,
                                                           bool onlyEnabledMotors) const
{
    QList<int> activities;
    for (const int position : positions) {
        if (const FW_StirringMotor *motor =
                getFirstStirringMotorOfCircuitPosition(position, onlyEnabledMotors))
            activities.append(motor->stirringActivity());
    }
    return activities;
}

void FW_Dispenser::setStirringMotor(const FW_StirringMotor &motor)
{
    eachCircuit(m_canisters, [&](FW_Circuit &circuit) { circuit.setStirringMotor(motor); });
}

QVector<const FW_CleaningMotor *> FW_Dispenser::cleaningMotors() const
{
    QVector<const FW_CleaningMotor *> motors;
    eachCircuit(m_canisters, [&](const FW_Circuit &circuit) {
        for (const FW_CleaningMotor &motor : circuit.cleaningMotors())
            motors.append(&motor);
    });
    return motors;
}

QVector<FW_CleaningMotor *> FW_Dispenser::changeableCleaningMotors()
{
    QVector<FW_CleaningMotor *> motors;
    eachCircuit(m_canisters, [&](FW_Circuit &circuit) {
        for (FW_CleaningMotor &motor : circuit.changeableCleaningMotors())
            motors.append(&motor);
    });
    return motors;
}

const FW_CleaningMotor *FW_Dispenser::firstCleaningMotor() const
{
    const FW_Circuit *circuit =
        foundCircuit(m_canisters, [](const FW_Circuit &c) { return c.firstCleaningMotor() != nullptr; });
    return circuit ? circuit->firstCleaningMotor() : nullptr;
}

void FW_Dispenser::setCleaningMotor(const FW_CleaningMotor &motor)
{
    eachCircuit(m_canisters, [&](FW_Circuit &circuit) { circuit.setCleaningMotor(motor); });
}

void FW_Dispenser::removeAllCleaningMotors()
{
    eachCircuit(m_canisters, [](FW_Circuit &circuit) { circuit.removeCleaningMotors(); });
}

int FW_Dispenser::getRampConfigRefByCircuitID(int circuitID) const
{
    const FW_Circuit *circuit = getCircuitById(circuitID);
    return circuit ? circuit->dosingMotor().rampConfigRef() : 0;
}

const FW_Ramp *FW_Dispenser::getRampByConfigRef(int reference) const
{
    const FW_Circuit *circuit = circuitOfReference(m_canisters, &FW_DosingMotor::rampConfigRef, reference);
    return circuit ? circuit->dosingMotor().ramp() : nullptr;
}

bool FW_Dispenser::updateRampData(int reference, const FW_Ramp &ramp)
{
    FW_Ramp updated = ramp;
    updated.setConfigRef(reference);
    return changeMotors(m_canisters, &FW_DosingMotor::rampConfigRef, reference,
                        [&](FW_DosingMotor &motor) { motor.setRamp(updated); });
}

int FW_Dispenser::getSingleTransmissionConfigRefByCircuitID(int circuitID) const
{
    const FW_Circuit *circuit = getCircuitById(circuitID);
    return circuit ? circuit->dosingMotor().singleTransmissionConfigRef() : 0;
}

const FW_SingleTransmission *FW_Dispenser::getSingleTransmissionByConfigRef(int reference) const
{
    const FW_Circuit *circuit =
        circuitOfReference(m_canisters, &FW_DosingMotor::singleTransmissionConfigRef, reference);
    return circuit ? circuit->dosingMotor().singleTransmission() : nullptr;
}

bool FW_Dispenser::updateSingleTransmissionData(int reference, const FW_SingleTransmission &transmission)
{
    FW_SingleTransmission updated = transmission;
    updated.configRef = reference;
    return changeMotors(m_canisters, &FW_DosingMotor::singleTransmissionConfigRef, reference,
                        [&](FW_DosingMotor &motor) { motor.setSingleTransmission(updated); });
}

QVector<const FW_DosingMotor *>
FW_Dispenser::getDosingMotorsBySingleTransmissionConfigRef(int reference) const
{
    QVector<const FW_DosingMotor *> motors;
    eachCircuit(m_canisters, [&](const FW_Circuit &circuit) {
        if (reference > 0 && circuit.dosingMotor().singleTransmissionConfigRef() == reference)
            motors.append(&circuit.dosingMotor());
    });
    return motors;
}

QVector<FW_DosingMotor *> FW_Dispenser::getDosingMotorsBySingleTransmissionConfigRef(int reference)
{
    QVector<FW_DosingMotor *> motors;
    changeMotors(m_canisters, &FW_DosingMotor::singleTransmissionConfigRef, reference,
                 [&](FW_DosingMotor &motor) { motors.append(&motor); });
    return motors;
}

int FW_Dispenser::getFlowCorrectionConfigRefByCircuitID(int circuitID) const
{
    const FW_Circuit *circuit = getCircuitById(circuitID);
    return circuit ? circuit->dosingMotor().flowCorrectionConfigRef() : 0;
}

const FW_FlowCorrection *FW_Dispenser::getFlowCorrectionByConfigRef(int reference) const
{
    const FW_Circuit *circuit =
        circuitOfReference(m_canisters, &FW_DosingMotor::flowCorrectionConfigRef, reference);
    return circuit ? circuit->dosingMotor().flowCorrection() : nullptr;
}

bool FW_Dispenser::updateFlowCorrectionData(int reference, const FW_FlowCorrection &correction)
{
    FW_FlowCorrection updated = correction;
    updated.configRef = reference;
    return changeMotors(m_canisters, &FW_DosingMotor::flowCorrectionConfigRef, reference,
                        [&](FW_DosingMotor &motor) { motor.setFlowCorrection(updated); });
}

const FW_Colorant *FW_Dispenser::getColorantByColCode(const QString &code) const
{
    return found(m_colorants, [&](const FW_Colorant &colorant) { return colorant.code() == code; });
}

const FW_Colorant *FW_Dispenser::getColorantBySystemColorantID(int id, bool onlyEnabled) const
{
    return found(m_colorants, [=](const FW_Colorant &colorant) {
        return id != 0 && colorant.systemColorantID() == id && (colorant.isEnabled() || !onlyEnabled);
    });
}

QVector<const FW_Colorant *> FW_Dispenser::getRealColorants(bool onlyEnabled) const
{
    QVector<const FW_Colorant *> colorants;
    for (const FW_Colorant &colorant : m_colorants) {
        const bool isHeld = found(m_canisters, [&](const FW_Canister &canister) {
                                return canister.colorantCode() == colorant.code();
                            }) != nullptr;
        if (isHeld && (colorant.isEnabled() || !onlyEnabled))
            colorants.append(&colorant);
    }
    return colorants;
}

const FW_Device *FW_Dispenser::getDevice(int kind) const
{
    const auto device = m_devices.find(kind);
    return device == m_devices.end() ? nullptr : device->second.get();
}

FW_Device *FW_Dispenser::getDevice(int kind)
{
    const auto device = m_devices.find(kind);
    if (device == m_devices.end())
        return nullptr;
    if (device->second.use_count() > 1) // a copy of the machine has it as well
        device->second.reset(device->second->clone());
    return device->second.get();
}

bool FW_Dispenser::createDevice(int kind)
{
    std::unique_ptr<FW_Device> device = hasDevice(kind) ? nullptr : FW_Device::create(kind);
    const bool created = device != nullptr;
    if (created)
        m_devices[kind] = std::move(device);
    return created;
}

void FW_Dispenser::setDevice(const FW_Device &device)
{
    m_devices[device.kind()].reset(device.clone());
}

bool FW_Dispenser::acceptCommands(int kind) const
{
    const FW_Device *device = getDevice(kind);
    return device && device->isEnabled();
}

bool FW_Dispenser::isZANDORDispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("ZANDOR"));
}

bool FW_Dispenser::isLUMINAdispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("LUMINA"));
}

bool FW_Dispenser::isSOLA100dispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("SOLA100"));
}

bool FW_Dispenser::isLIRADORdispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("LIRADOR"));
}

bool FW_Dispenser::isROTANV1dispenser(const QString &modelName)
{
    return isOfLine(modelName, QLatin1String("ROTAN V1"));
}

bool FW_Dispenser::isRotatingDispenserModel(MachineModel model)
{
    return model == MachineModel::Rotan || model == MachineModel::Lirador;
}
