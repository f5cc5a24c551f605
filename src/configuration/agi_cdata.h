// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

#include <QuvFramework/fw_stirringmotor.h>

/** "@AGI", the motor that stirs the canister of a circuit, or with canister and position 245 all of them. */
class QUVPROTOCOL_EXPORT AGI_cdata final : public ConfData
{
public:
    AGI_cdata();
    /**
     * A complete row, with `cmd_enabled` 0 when nothing stirs that circuit. Throws DE00234 without a machine, DE02807 for one that
     * is no dispenser.
     */
    AGI_cdata(int circuitID, const FW_Machine *machine);
    /** \a fieldCount counts `cmd_enabled`. Throws DE00237 to DE00244 and the codes of fields, and what ConfData throws. */
    AGI_cdata(QStringList tokens, int fieldCount);
    explicit AGI_cdata(QString row); ///< throws DE00245, and what ConfData throws

    AGI_cdata *clone() const override;
    static QStringList labels(); ///< of the fields behind `cmd_enabled`, by position
    void clear();                ///< a motor with its defaults, of no canister
    const FW_StirringMotor &stirringMotor() const { return m_motor; }
    int canisterID() const { return m_canisterID; }
    int positionID() const { return m_positionID; }

    bool updateLocalData(QString *error) override;
    /**
     * Gives the motor to the circuit at the position, which is made when there is none, or to all circuits. False without a
     * dispenser, and for a circuit that cannot be made.
     */
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

private:
    FW_StirringMotor m_motor;
    int m_canisterID = 0;
    int m_positionID = 0;
};
