// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QuvFramework/formula.h>

class FW_Dispenser;

/** PRIMING: fills circuits by the strokes that a formula gives them. */
class QUVPROTOCOL_EXPORT PrimingCmd : public quv::DescribedCommand<PrimingCmd, SerialProtoCommand>
{
public:
    struct Description;

    // With a dispenser the formula is checked, and a constructor throws what checkFormula tells.
    PrimingCmd() = default;
    PrimingCmd(const Formula &formula, const FW_Dispenser *dispenser);
    /** One formula. Throws DE00497 when it cannot be read. */
    PrimingCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /** The same as a list, the formula also as a map. Throws DE00494 for another type, DE00493 for a bad map. */
    PrimingCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    PrimingCmd *clone() const override;

    const Formula &formula() const { return m_formula; }

    /**
     * DE01066 no dispenser, DE00495 a quantity of 0 or less, DE00499 another unit than strokes; with the policy to check
     * levels DE00503 no check possible, DE00502 below the reserve, DE00501 below zero, DE00535 worse; then what the formula
     * says of the machine, DE00534 empty, DE00504 no strokes, DE00505 no speed.
     */
    bool checkFormula(FW_DriverError &error) const;

    /** As a tint's, with 3 for the criterion and strokes for steps. Empty without a dispenser that fits the formula. */
    QList<int> serialParameters(int family) const override;

    TString actionString(bool detailed) const override;

    // What a program suggests to its user for a circuit, by the program's own code of the circuit's type.
    static int defaultPrimingStrokes(int type);
    static int defaultPrimingSpeed(int type);

private:
    Formula m_formula;
};
