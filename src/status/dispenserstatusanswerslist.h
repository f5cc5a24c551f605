// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "dispenserstatusanswer.h"

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QPair>

/**
 * What several circuits of a dispenser are doing: the positions, each with its status, in the order in which they were told. Over
 * XML-RPC an array of structs.
 */
class QUVPROTOCOL_EXPORT DispenserStatusAnswersList
{
public:
    static constexpr char positionID_TAG[] = "position_id";
    static constexpr char statusAnswer_TAG[] = "status_answer";

    DispenserStatusAnswersList() = default;
    explicit DispenserStatusAnswersList(QList<QPair<int, DispenserStatusAnswer>> answers);
    /**
     * Throws DE01165 (no array), DE01169 (an empty one), DE01166 (an element without a position), DE01167 (without a status), what
     * DispenserStatusAnswer throws of the status, and DE01168 for any other failure to read or to append it.
     */
    explicit DispenserStatusAnswersList(const XmlRpc::XmlRpcValue &value);

    void clear() { m_answers.clear(); }
    /** Appends a copy, also when the position is there already. */
    void appendDispenserStatusAnswer(int positionID, const DispenserStatusAnswer &answer);

    /** Copies the first status of the position; false, and \a answer stays, when there is none. */
    bool getDispenserStatusAnswerByPositionID(int positionID, DispenserStatusAnswer &answer) const;

    // The positions that are at it, in the list's order.
    QList<int> getTintingPositions() const;
    QList<int> getRecirculatingPositions() const;
    QList<int> getStirringPositions() const;

    const QList<QPair<int, DispenserStatusAnswer>> &answers() const { return m_answers; }

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    /** Compares positions and statuses in their order, as statuses compare themselves: without pumping. */
    bool operator==(const DispenserStatusAnswersList &other) const { return m_answers == other.m_answers; }
    bool operator!=(const DispenserStatusAnswersList &other) const { return !(*this == other); }

private:
    QList<int> positionsWith(bool DispenserStatusAnswer::*flag) const;

    QList<QPair<int, DispenserStatusAnswer>> m_answers;
};

Q_DECLARE_METATYPE(DispenserStatusAnswersList)
