// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pcircuit.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>

struct FW_Version;

/**
 * Circuits to prime, pack or purge of air, with all the numbers that the firmware needs. Travels in a QVariant under its
 * name, also as the map that its struct is; over XML-RPC "exec_criterion" (int) and "target_circuits" (array of PCircuit,
 * may be left out).
 */
struct QUVPROTOCOL_EXPORT PCircuitFormula
{
    static constexpr char executionCriterion_TAG[] = "exec_criterion";
    static constexpr char targetCircuits_TAG[] = "target_circuits";

    PCircuitFormula() = default;
    PCircuitFormula(int criterion, const QList<PCircuit> &circuits)
        : executionCriterion(criterion),
          targetCircuits(circuits)
    {}
    /** Throws DE02318 when the value is no struct, DE02319 without a criterion, DE02317 for bad circuits. */
    explicit PCircuitFormula(const XmlRpc::XmlRpcValue &value);
    explicit PCircuitFormula(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit PCircuitFormula(int) = delete;
    explicit PCircuitFormula(double) = delete;
    explicit PCircuitFormula(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    /** 1 and 2 always; 8 on family 68 above revision 2 and family 72; 16 on family 70 above revision 1. */
    static bool isSupportedExecutionCriterion(int criterion, const FW_Version &version);

    bool operator==(const PCircuitFormula &other) const;
    bool operator!=(const PCircuitFormula &other) const { return !(*this == other); }

    int executionCriterion = 0; ///< how the circuits run together, as the firmware means it
    QList<PCircuit> targetCircuits;
};

Q_DECLARE_METATYPE(PCircuitFormula)
