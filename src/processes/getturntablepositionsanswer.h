// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedanswer.h"
#include "../base/serialprotoanswer.h"
#include "ttcircuitdata.h"

#include <QtCore/QList>

/** The answer to GET_TURNTABLE_POSITIONS: the circuits on the turntable and where they are. */
class QUVPROTOCOL_EXPORT GetTurntablePositionsAnswer
    : public quv::DescribedAnswer<GetTurntablePositionsAnswer, SerialProtoAnswer>
{
public:
    struct Description;

    static constexpr char turntableCircuits_TAG[] = "turntable_circuits";

    GetTurntablePositionsAnswer() = default;
    explicit GetTurntablePositionsAnswer(const QList<TTCircuitData> &circuits);
    /**
     * Tokens: the number of circuits, then for each its position, its place in steps and the size of its fin, both as a
     * number of digits and base-246 digits. Throws DE01749 to DE01755 for tokens that are not that, DE01753
     * and DE01755 also for a number above 2^53, and what SerialProtoAnswer throws.
     */
    explicit GetTurntablePositionsAnswer(QStringList tokens);
    /** Throws DE01757 without the array, DE01756 when an element cannot be read, or what TTCircuitData throws. */
    explicit GetTurntablePositionsAnswer(const XmlRpc::XmlRpcValue &value);
    /** Each element a circuit. Throws DE01758 for another type, or what TTCircuitData throws for a bad map. */
    explicit GetTurntablePositionsAnswer(QList<QVariant> &list);

    GetTurntablePositionsAnswer *clone() const override;

    const QList<TTCircuitData> &turntableCircuits() const { return m_turntableCircuits; }

private:
    QList<TTCircuitData> m_turntableCircuits;
};
