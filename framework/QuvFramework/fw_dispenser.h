// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_canister.h>
#include <QuvFramework/fw_colorant.h>
#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_machine.h>

#include <QtCore/QList>
#include <QtCore/QVector>

#include <map>
#include <memory>

/**
 * A colorant dispenser: canisters with the circuits that they feed, colorants, and devices. Copies share what they hold
 * until one of them is changed.
 */
class QUVFRAMEWORK_EXPORT FW_Dispenser : public FW_Machine
{
public:
    /** Which of the two firmware code columns a dispenser speaks; the values are bits of a command's family mask. */
    enum CommandFamily { CommandFamily1 = 1, CommandFamily2 = 2 };

    enum class HeadArrangement { Single = 1, Dual = 2 };

    FW_Dispenser() = default;

    FW_Dispenser *clone() const override;
    SerialDeviceType machineType() const override;

    CommandFamily commandFamily() const { return m_commandFamily; }
    void setCommandFamily(CommandFamily family) { m_commandFamily = family; }
    HeadArrangement headArrangement() const { return m_headArrangement; }
    void setHeadArrangement(HeadArrangement arrangement) { m_headArrangement = arrangement; }
    bool hasMultipleHead() const { return m_headArrangement == HeadArrangement::Dual; }

    /** How many circuits pour at once; 1 at least. */
    int tintingParallelism() const { return m_tintingParallelism; }
    void setTintingParallelism(int circuits) { m_tintingParallelism = circuits; }
    /** True when each pour goes through a nozzle valve of its own choice. */
    bool hasNozzleBasedDosing() const { return m_nozzleBasedDosing; }
    void setNozzleBasedDosing(bool nozzleBased) { m_nozzleBasedDosing = nozzleBased; }
    /** True when a circuit is dosed by a scale, so that nobody knows beforehand how long it takes. */
    bool hasGravimetricSwDosingMotors() const;

    // Canisters and circuits. Pointers point into the machine and are null for what it does not have.
    const QList<FW_Canister> &canisters() const { return m_canisters; }
    void addCanister(const FW_Canister &canister) { m_canisters.append(canister); }
    bool hasCanisterID(int id) const { return getCanisterById(id) != nullptr; }
    const FW_Canister *getCanisterById(int id) const;
    FW_Canister *getCanisterById(int id);
    const FW_Canister *getCanisterOfCircuitID(int circuitID) const;

    QVector<const FW_Circuit *> getCircuits() const; ///< in the canisters' order
    QVector<const FW_Circuit *> getEnabledCircuits() const;
    bool hasCircuitID(int id) const { return getCircuitById(id) != nullptr; }
    const FW_Circuit *getCircuitById(int id) const;
    const FW_Circuit *getCircuitByPosition(int position) const;
    FW_Circuit *getCircuitByPosition(int position);
    /** Positions in ascending order, of all circuits or of the enabled ones only. */
    QList<int> getPositionsIDList(bool onlyEnabled) const;
    bool hasCircuitPosition(int position, bool onlyEnabled) const;
    bool hasCircuitPositions(const QList<int> &positions, bool onlyEnabled) const; ///< true for all of them

    const QList<FW_Colorant> &colorants() const { return m_colorants; }
    void addColorant(const FW_Colorant &colorant) { m_colorants.append(colorant); }
    bool hasColorantCode(const QString &code) const { return getColorantByColCode(code) != nullptr; }
    const FW_Colorant *getColorantByColCode(const QString &code) const;

    // Devices, one of a kind (FW_Device::Kind) at most.
    bool hasDevice(int kind) const { return getDevice(kind) != nullptr; }
    const FW_Device *getDevice(int kind) const;
    void setDevice(const FW_Device &device); ///< a copy, in the place of the former one of its kind
    /** True when the machine has the device of this kind enabled, so that it can be moved by command. */
    bool acceptCommands(int kind) const;

    // Model tests: the model's name begins with the line's name, whatever its case.
    static bool isZANDORDispenser(const QString &modelName);
    static bool isLUMINAdispenser(const QString &modelName);
    static bool isSOLA100dispenser(const QString &modelName);
    static bool isLIRADORdispenser(const QString &modelName);

private:
    CommandFamily m_commandFamily = CommandFamily1;
    HeadArrangement m_headArrangement = HeadArrangement::Single;
    int m_tintingParallelism = 1;
    bool m_nozzleBasedDosing = false;
    QList<FW_Canister> m_canisters;
    QList<FW_Colorant> m_colorants;
    std::map<int, std::shared_ptr<const FW_Device>> m_devices;
};
