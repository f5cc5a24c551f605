// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

#include <QuvFramework/fw_canisterlevelsensor.h>
#include <QuvFramework/fw_circuit.h>

#include <optional>

class FW_Dispenser;
class FW_DriverError;

/**
 * "@CPT", one circuit: its valve and motors, what the firmware is told of its canister, and the level sensor of that canister,
 * for which the circuit at the canister's lowest position speaks.
 */
class QUVPROTOCOL_EXPORT CPT_cdata final : public ConfData
{
public:
    CPT_cdata();
    /**
     * A complete row of defaults, with `cmd_enabled` 0, when there is no such circuit. Throws DE00209 without a machine, DE02808
     * for one that is no dispenser.
     */
    CPT_cdata(int circuitID, const FW_Machine *machine);
    /** \a fieldCount counts `cmd_enabled`. Throws DE00213 to DE00232 and the codes of fields, and what ConfData throws. */
    CPT_cdata(QStringList tokens, int fieldCount);
    explicit CPT_cdata(QString row); ///< throws DE00233, and what ConfData throws

    CPT_cdata *clone() const override;
    static QStringList labels(); ///< of the fields behind `cmd_enabled`, by position
    void clear();                ///< a circuit with its defaults, without sensor, of no canister

    const FW_Circuit &circuit() const { return m_circuit; }
    /**
     * Null for none. One that came in a row has its critical level and check frequency as the row tells them, in the units of a
     * stroke; one of a machine has hundredths of a stroke.
     */
    const FW_CanisterLevelSensor *levelSensor() const { return m_levelSensor ? &*m_levelSensor : nullptr; }
    int canisterID() const { return m_canisterID; }
    bool activationFlag() const { return m_activationFlag; }
    int canisterSize() const { return m_canisterSize; } ///< in hundreds
    // References of the parts that dosing motors share, 0 for none.
    int rampReference() const { return m_rampReference; }
    int singleTransmissionReference() const { return m_singleTransmissionReference; }
    int flowCorrectionReference() const { return m_flowCorrectionReference; }
    const QList<int> &layoutPositionsId() const { return m_layoutPositionsId; }

    /** Reads the fields from the token \a position on into the parameters; false and \a error filled when one is missing. */
    bool parseConfigurationParams(QStringList tokens, int fieldCount, int position, FW_DriverError &error);
    bool updateLocalData(QString *error) override;
    /**
     * Gives everything to the circuit at the position and to the canister, which are made when there are none. With \a profiles
     * the motor is the pump that they know, set up as the row tells; the first value of \a extra is what "@GMC" tells of
     * all level sensors. False without a dispenser, and for a circuit that cannot be made.
     */
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

private:
    void takeCircuit(const FW_Circuit &circuit, const FW_Dispenser &dispenser);

    FW_Circuit m_circuit;
    std::optional<FW_CanisterLevelSensor> m_levelSensor;
    int m_canisterID = 0;
    bool m_activationFlag = false;
    int m_canisterSize = 0;
    int m_rampReference = 0;
    int m_singleTransmissionReference = 0;
    int m_flowCorrectionReference = 0;
    QList<int> m_layoutPositionsId;
    bool m_isOfRow = false; ///< and not of a machine, which tells more than a row
};
