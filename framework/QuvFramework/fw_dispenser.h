// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_canister.h>
#include <QuvFramework/fw_colorant.h>
#include <QuvFramework/fw_device.h>
#include <QuvFramework/fw_machine.h>
#include <QuvFramework/fw_timespan.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QVector>

#include <map>
#include <memory>
#include <optional>
#include <utility>

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
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_Dispenser(const XmlRpc::XmlRpcValue &value);

    FW_Dispenser *clone() const override;
    SerialDeviceType machineType() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    bool equalTo(const FW_Machine &other) const override;

    CommandFamily commandFamily() const { return m_commandFamily; }
    void setCommandFamily(CommandFamily family) { m_commandFamily = family; }
    HeadArrangement headArrangement() const { return m_headArrangement; }
    void setHeadArrangement(HeadArrangement arrangement) { m_headArrangement = arrangement; }
    bool hasMultipleHead() const { return m_headArrangement == HeadArrangement::Dual; }

    /** How many circuits pour at once; 1 at least. */
    int tintingParallelism() const { return m_tintingParallelism; }
    void setTintingParallelism(int circuits) { m_tintingParallelism = circuits; }
    /** How many circuits recirculate at once. */
    int recirculatingParallelism() const { return m_recirculatingParallelism; }
    void setRecirculatingParallelism(int circuits) { m_recirculatingParallelism = circuits; }
    /** How many canisters are stirred at once. */
    int stirringParallelism() const { return m_stirringParallelism; }
    void setStirringParallelism(int canisters) { m_stirringParallelism = canisters; }
    /** True when each pour goes through a nozzle valve of its own choice. */
    bool hasNozzleBasedDosing() const { return m_nozzleBasedDosing; }
    void setNozzleBasedDosing(bool nozzleBased) { m_nozzleBasedDosing = nozzleBased; }
    /** True when a circuit is dosed by a scale, so that nobody knows beforehand how long it takes. */
    bool hasGravimetricSwDosingMotors() const;
    /** False when nobody knows beforehand how long a pour takes. */
    bool canEstimateDosingCmdExecution() const { return !hasGravimetricSwDosingMotors(); }

    // How the machine as a whole is set up.
    int initialWorkingMode() const { return m_initialWorkingMode; }
    void setInitialWorkingMode(int mode) { m_initialWorkingMode = mode; }
    static bool checkWorkingMode(int mode); ///< 0 to 8
    int powerSupply() const { return m_powerSupply; }
    void setPowerSupply(int supply) { m_powerSupply = supply; }
    /** A mask of the ways in which the machine is reached. */
    int connectivity() const { return m_connectivity; }
    void setConnectivity(int mask, bool add) { m_connectivity = add ? m_connectivity | mask : mask; }
    int powerOffDelay() const { return m_powerOffDelay; } ///< seconds until the motors are without power
    void setPowerOffDelay(int seconds) { m_powerOffDelay = seconds; }
    int postTintingTime() const { return m_postTintingTime; } ///< seconds
    void setPostTintingTime(int seconds) { m_postTintingTime = seconds; }
    /** The modules that the machine is built of, 1 to 31. */
    const QList<int> &modulesID() const { return m_modulesID; }
    void setModulesID(const QList<int> &modules) { m_modulesID = modules; }
    // The same as the firmware's mask, module 1 the lowest bit.
    int getFirmwareConfModulesID() const;
    void setFirmwareConfModulesID(int mask);
    int ledManagement() const { return m_ledManagement; }
    void setLedManagement(int value) { m_ledManagement = value; }
    int timedProcessesStartupMask() const { return m_timedProcessesStartupMask; }
    void setTimedProcessesStartupMask(int mask) { m_timedProcessesStartupMask = mask; }

    /** The pause that recirculation, cleaning and stirring make between two circuits. \a unit: FW_TimeSpan::Unit. */
    int RCSProcessPause(int unit) const { return m_RCSProcessPause.in(unit); }
    void setRCSProcessPause(int value, int unit) { m_RCSProcessPause = FW_TimeSpan(value, unit); }
    int RCSProcessesFwMask() const
    {
        return m_RCSProcessesFwMask;
    } ///< which of the three go on by themselves
    void setRCSProcesses(int mask) { m_RCSProcessesFwMask = mask; }
    bool canConfigureRCSProcess() const; ///< true when a circuit has a motor for one of the three

    /** False, and the results as they were, until they have been set. */
    bool getReserveSensorTypeAndPolicyMask(int &type, int &policy) const;
    /** \a onlyFirst leaves what has been set before. */
    void setReserveSensorTypeAndPolicyMask(int type, int policy, bool onlyFirst);
    /** The position whose circuit speaks for the level sensor of a canister, its lowest; 0 for none. */
    int getCLS_MasterPositionID(int canisterID) const;

    /** True when the valves of the circuits close the nozzles as well. */
    bool hasIntegratedNozzleValveSystem() const { return m_INVType != 0; }
    int INVType() const { return m_INVType; } ///< 0 for none
    /** Type 1 for valves of type 3, 2 for those of type 5; another changes nothing. */
    void setINVTypeFromValve(int valveType);

    bool operator==(const FW_Dispenser &other) const;
    bool operator!=(const FW_Dispenser &other) const { return !(*this == other); }

    // Canisters and circuits. Pointers point into the machine and are null for what it does not have.
    const QList<FW_Canister> &canisters() const { return m_canisters; }
    void addCanister(const FW_Canister &canister) { m_canisters.append(canister); }
    /**
     * Puts the canister before the one at \a index, -1 for the end. When there is one of its ID already: false, or with \a
     * replace that one's place, wherever it is.
     */
    bool addCanister(const FW_Canister &canister, int index, bool replace);
    bool hasCanisterID(int id) const { return getCanisterById(id) != nullptr; }
    const FW_Canister *getCanisterById(int id) const;
    FW_Canister *getCanisterById(int id);
    const FW_Canister *getCanisterOfCircuitID(int circuitID) const;
    QVector<const FW_Canister *> getEnabledCanisters(bool onlyWithCircuits) const; ///< with enabled ones

    QVector<const FW_Circuit *> getCircuits() const; ///< in the canisters' order
    QVector<const FW_Circuit *> getEnabledCircuits() const;
    bool hasCircuitID(int id) const { return getCircuitById(id) != nullptr; }
    const FW_Circuit *getCircuitById(int id) const;
    const FW_Circuit *getCircuitByPosition(int position) const;
    FW_Circuit *getCircuitByPosition(int position);
    FW_Circuit *getCircuitById(int id);
    /**
     * A circuit of a canister with its defaults; \a circuitID 0 takes the lowest that is free. Null without such a canister, for
     * a position below 1 or of another circuit, and for the ID of another circuit.
     */
    FW_Circuit *addNewCircuit(int canisterID, int position, int circuitID);
    FW_Circuit *addNewCircuit(const FW_Canister &canister, int position, int circuitID);
    /** Positions in ascending order, of all circuits or of the enabled ones only. */
    QList<int> getPositionsIDList(bool onlyEnabled) const;
    /** The same, but canister by canister in the order of their IDs; enabled are those of enabled canisters only. */
    QList<int> getPositionsIDSortedByCanister(bool onlyEnabled) const;
    /** The addresses of the circuits' boards that are reached by wire: a board has its circuit's position, enabled or not. */
    QList<int> getWireBoardsID() const { return getPositionsIDList(false); }
    /**
     * The IDs of so many circuits by chance, each once, in an order by chance too; of those that are enabled, as their canister is, and
     * have a dosing motor and a usable calibration. All of these when \a count is greater.
     */
    QList<int> getRandomCircuitsID(int count) const;
    bool hasCircuitPosition(int position, bool onlyEnabled) const;
    bool hasCircuitPositions(const QList<int> &positions, bool onlyEnabled) const; ///< true for all of them

    // Motors of all circuits, in the circuits' order.
    QVector<const FW_StirringMotor *> stirringMotors() const;
    const FW_StirringMotor *firstStirringMotor() const;
    bool areStirringMotorsEnabled() const; ///< true when one of them is
    /** Null for a position without one, or with \a onlyEnabled without one that is enabled. */
    const FW_StirringMotor *getFirstStirringMotorOfCircuitPosition(int position, bool onlyEnabled) const;
    /** Positions in ascending order of the circuits with such a motor. */
    QList<int> getPositionsIDListOfStirringMotors(bool onlyEnabledCircuits, bool onlyEnabledMotors) const;
    /** The activities, in seconds, of the motors at the positions; a position without such a motor has none. */
    QList<int> getStirringActivitiesForPositions(const QList<int> &positions, bool onlyEnabledMotors) const;
    void setStirringMotor(const FW_StirringMotor &motor);       ///< every circuit gets this one alone
    bool hasGlobalStirring() const { return m_globalStirring; } ///< one motor stirs all canisters
    void setGlobalStirring(bool global) { m_globalStirring = global; }
    QVector<const FW_CleaningMotor *> cleaningMotors() const;
    QVector<FW_CleaningMotor *> changeableCleaningMotors();
    const FW_CleaningMotor *firstCleaningMotor() const;
    void setCleaningMotor(const FW_CleaningMotor &motor); ///< every circuit gets this one alone
    void removeAllCleaningMotors();

    // Parts that dosing motors share by a reference above 0. The reference of a circuit without the part is 0; an update changes
    // the part of every motor with the reference, and is false when there is none.
    int getRampConfigRefByCircuitID(int circuitID) const;
    bool existsRampConfigRef(int reference) const { return getRampByConfigRef(reference) != nullptr; }
    const FW_Ramp *getRampByConfigRef(int reference) const;
    bool updateRampData(int reference, const FW_Ramp &ramp);
    int getSingleTransmissionConfigRefByCircuitID(int circuitID) const;
    bool existsSingleTransmissionConfigRef(int reference) const
    {
        return getSingleTransmissionByConfigRef(reference) != nullptr;
    }
    const FW_SingleTransmission *getSingleTransmissionByConfigRef(int reference) const;
    bool updateSingleTransmissionData(int reference, const FW_SingleTransmission &transmission);
    QVector<const FW_DosingMotor *> getDosingMotorsBySingleTransmissionConfigRef(int reference) const;
    QVector<FW_DosingMotor *> getDosingMotorsBySingleTransmissionConfigRef(int reference);
    int getFlowCorrectionConfigRefByCircuitID(int circuitID) const;
    bool existsFlowCorrectionConfigRef(int reference) const
    {
        return getFlowCorrectionByConfigRef(reference) != nullptr;
    }
    const FW_FlowCorrection *getFlowCorrectionByConfigRef(int reference) const;
    bool updateFlowCorrectionData(int reference, const FW_FlowCorrection &correction);

    const QList<FW_Colorant> &colorants() const { return m_colorants; }
    void addColorant(const FW_Colorant &colorant) { m_colorants.append(colorant); }
    bool hasColorantCode(const QString &code) const { return getColorantByColCode(code) != nullptr; }
    const FW_Colorant *getColorantByColCode(const QString &code) const;
    bool hasSystemColorantID(int id) const { return getColorantBySystemColorantID(id, false) != nullptr; }
    const FW_Colorant *getColorantBySystemColorantID(int id, bool onlyEnabled) const; ///< none has the ID 0
    /** The colorants that a canister of the machine holds. */
    QVector<const FW_Colorant *> getRealColorants(bool onlyEnabled) const;

    // Devices, one of a kind (FW_Device::Kind) at most.
    bool hasDevice(int kind) const { return getDevice(kind) != nullptr; }
    const FW_Device *getDevice(int kind) const;
    FW_Device *getDevice(int kind);
    bool
    createDevice(int kind); ///< with its defaults; false when there is one, and for a number that is no kind
    void setDevice(const FW_Device &device); ///< a copy, in the place of the former one of its kind
    /** True when the machine has the device of this kind enabled, so that it can be moved by command. */
    bool acceptCommands(int kind) const;

    // Model tests: the model's name begins with the line's name, whatever its case.
    static bool isZANDORDispenser(const QString &modelName);
    static bool isLUMINAdispenser(const QString &modelName);
    static bool isSOLA100dispenser(const QString &modelName);
    static bool isLIRADORdispenser(const QString &modelName);
    static bool isROTANV1dispenser(const QString &modelName);
    static bool isRotatingDispenserModel(MachineModel model); ///< of the two that turn a table

private:
    CommandFamily m_commandFamily = CommandFamily1;
    HeadArrangement m_headArrangement = HeadArrangement::Single;
    int m_tintingParallelism = 1;
    int m_recirculatingParallelism = 1;
    int m_stirringParallelism = 1;
    bool m_nozzleBasedDosing = false;
    int m_initialWorkingMode = 1;
    int m_powerSupply = 1;
    int m_connectivity = 1;
    int m_powerOffDelay = 60;
    int m_postTintingTime = 0;
    QList<int> m_modulesID;
    int m_ledManagement = 0;
    int m_timedProcessesStartupMask = 0;
    FW_TimeSpan m_RCSProcessPause = FW_TimeSpan(30, FW_TimeSpan::Minutes);
    int m_RCSProcessesFwMask = 0;
    std::optional<std::pair<int, int>> m_reserveSensor; ///< type and policy
    int m_INVType = 0;
    bool m_globalStirring = false;
    QList<FW_Canister> m_canisters;
    QList<FW_Colorant> m_colorants;
    std::map<int, std::shared_ptr<FW_Device>> m_devices;
};

Q_DECLARE_METATYPE(FW_Dispenser)
