// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "circuitprocess.h"

#include <QtCore/QPair>

/**
 * The circuits that are engaged in a process, the answer to GET_ACTIVE_CIRCUITS. The firmware tells one more value of each, and the
 * process decides what it is: a stall level (13), the position of its nozzle valve (11), or how the circuit is engaged.
 */
class QUVPROTOCOL_EXPORT GetActiveCircuitsAnswer
    : public quv::DescribedAnswer<GetActiveCircuitsAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char positionsID_TAG[] = "positions_id";
    static constexpr char nozzleValvePositions_TAG[] = "nozzle_valve_positions";
    static constexpr char circuitProcess_TAG[] = "circuit_process";
    static constexpr char statusTypeMasks_TAG[] = "status_type_masks";
    static constexpr char statusTypeMask_TAG[] = "status_type_mask";
    static constexpr char stallLevels_TAG[] = "stall_levels";

    GetActiveCircuitsAnswer() = default;
    GetActiveCircuitsAnswer(CircuitProcess process, QList<int> positionsID);
    /**
     * Tokens of the firmware: length, number of positions, values per position; then of each the position and its second value. Throws
     * DE02449 (number of positions), DE02563 (values per position), DE02450 (a position), DE02629 (a second value), DE02564 (only one
     * value per position), and what SerialProtoAnswer throws.
     */
    GetActiveCircuitsAnswer(QStringList tokens, CircuitProcess process);
    explicit GetActiveCircuitsAnswer(QList<QVariant> &list); ///< cleared; the list is not read
    /** Throws DE02451 without a process, DE02565 and DE02939 for nozzle valve positions and masks of another type. */
    explicit GetActiveCircuitsAnswer(const XmlRpc::XmlRpcValue &value);

    GetActiveCircuitsAnswer *clone() const override;

    void clear();

    const QList<int> &positionsID() const { return m_positionsID; }
    /** Positions, each with where its nozzle valve is. */
    const QList<QPair<int, int>> &nozzleValvePositions() const { return m_nozzleValvePositions; }
    CircuitProcess circuitProcess() const { return static_cast<CircuitProcess>(m_circuitProcess); }
    /** Bits of CircuitProcessStatusMask, one mask a position. */
    const QList<int> &statusTypeMasks() const { return m_statusTypeMasks; }
    /** Positions, each with its stall level. */
    const QList<QPair<int, int>> &stallLevelsPos() const { return m_stallLevels; }

    /** The positions whose mask holds all bits of \a mask; none when not every position has one mask. */
    QList<int> getPositionsIDForStatusMask(CircuitProcessStatusMask mask) const;
    /** The masks in words, joined by a comma. */
    QString statusTypeMasksStr() const;
    static QString statusTypeMaskStr(int mask); ///< empty for neither bit

private:
    void addSecondValue(int positionID, int value);

    QList<int> m_positionsID;
    QList<QPair<int, int>> m_nozzleValvePositions;
    int m_circuitProcess = static_cast<int>(CircuitProcess::None);
    QList<int> m_statusTypeMasks;
    QList<QPair<int, int>> m_stallLevels;
};
