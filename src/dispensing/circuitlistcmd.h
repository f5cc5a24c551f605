// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotocommand.h"
#include "pcircuitformula.h"

/**
 * What the commands share that move pumps by a list of circuits and need no calibration for it. The only argument is a
 * PCircuitFormula.
 */
class QUVPROTOCOL_EXPORT CircuitListCmd : public SerialProtoCommand
{
public:
    const PCircuitFormula &formula() const { return m_formula; }

    /** The criterion and the number of circuits; then position, queue, speed and counted digits of the strokes of each. */
    QList<int> serialParameters(int family) const override;

    /** Family 63 above revision 32, families 70 and 72. */
    bool isSupportedCommand(const FW_Version &version) const override;

protected:
    /** What each step of the check is called; the text is one. */
    struct CheckCodes
    {
        const char *noDispenser = "";
        const char *noCircuits = "";
        const char *unknownCircuit = ""; ///< the machine does not have it enabled
    };

    CircuitListCmd(const QString &command, const FW_Machine *machine);
    CircuitListCmd(const QString &command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    CircuitListCmd(const QString &command, const QList<QVariant> &list, const FW_Machine *machine);
    CircuitListCmd(const CircuitListCmd &) = default;

    bool checkCircuits(const CheckCodes &codes, FW_DriverError &error) const;
    QList<int> positions() const;
    QString positionsText() const; ///< decimal, joined by a comma

    PCircuitFormula m_formula;
};
