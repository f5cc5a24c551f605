// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QuvFramework/formula.h>

class FW_Dispenser;

/** PACK: moves the pumps of a formula's circuits into or out of their transport position. Quantities are not sent. */
class QUVPROTOCOL_EXPORT PackCmd : public quv::DescribedCommand<PackCmd, SerialProtoCommand>
{
public:
    struct Description;

    enum PumpMovementType { PumpPack = 0, PumpUnpack = 1 };

    // The movement type is checked always, first. With a dispenser the formula is checked too, and a constructor throws what
    // checkFormula tells.
    PackCmd() = default; ///< without a movement type, which is -1 then
    /** Throws DE00506 for another movement type. */
    PackCmd(int pumpMovementType, const Formula &formula, const FW_Dispenser *dispenser);
    /** Movement type and formula. Throws DE00988 for no int, DE00987 for another movement type, DE00989 for a bad formula. */
    PackCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /**
     * The same as a list, the formula also as a map. Throws DE00863 for no int, DE00992 for another movement type, DE00994
     * for no formula, DE00993 for a bad map.
     */
    PackCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    PackCmd *clone() const override;

    static bool checkPumpMovementType(int type); ///< 0 or 1

    int pumpMovementType() const { return m_pumpMovementType; }
    QString pumpMovementTypeStr() const; ///< translated; empty for no movement type
    const Formula &formula() const { return m_formula; }

    /**
     * DE01195 no dispenser, DE00990 a quantity of 0 or less; then what the formula says of the machine, DE00991 empty, DE00995
     * no speed.
     */
    bool checkFormula(FW_DriverError &error) const;

    /** As a tint's, with 3 for the criterion and the movement type for steps. Empty without a dispenser that fits. */
    QList<int> serialParameters(int family) const override;

    /** By the command's own machine. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;

    QString commandString() const override; ///< pumpMovementTypeStr()
    TString actionString(bool detailed) const override;

private:
    int m_pumpMovementType = -1;
    Formula m_formula;
};
