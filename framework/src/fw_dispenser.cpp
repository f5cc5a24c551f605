// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_dispenser.h>

#include <algorithm>
#include <iterator>

namespace {

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

QVector<const FW_Circuit *> FW_Dispenser::getCircuits() const
{
    QVector<const FW_Circuit *> circuits;
    for (const FW_Canister &canister : m_canisters) {
        for (const FW_Circuit &circuit : canister.circuits())
            circuits.append(&circuit);
    }
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

const FW_Colorant *FW_Dispenser::getColorantByColCode(const QString &code) const
{
    return found(m_colorants, [&](const FW_Colorant &colorant) { return colorant.code() == code; });
}

const FW_Device *FW_Dispenser::getDevice(int kind) const
{
    const auto device = m_devices.find(kind);
    return device == m_devices.end() ? nullptr : device->second.get();
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
